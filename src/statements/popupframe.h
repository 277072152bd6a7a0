#pragma once

#include <QFrame>

class QPushButton;
class QVBoxLayout;

/**
 * A frame that pops up over its panel with an OK and a Cancel button, as the salary panel's
 * grids and perquisites do. It stays until its owner hides it, so that a refused OK keeps it
 * open; Escape presses Cancel.
 */
class PopupFrame : public QFrame
{
    Q_OBJECT

public:
    PopupFrame(const QString &name, const QString &title, const QString &okName,
               const QString &cancelName, QWidget *parent);

    /// Where the frame's own controls go, above the buttons.
    QVBoxLayout *body() const { return m_body; }

    /// Shows the frame in the middle of its panel, above the panel's controls.
    void popUp();

signals:
    void okClicked();
    void cancelClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QVBoxLayout *m_body;
    QPushButton *m_cancel;
};
