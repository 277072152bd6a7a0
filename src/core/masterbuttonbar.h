#pragma once

#include <QWidget>

class QPushButton;

// The five buttons of a master screen, "cmd(0)" to "cmd(4)": Add New, Edit, Save, Cancel,
// Delete. The screen reacts to clicked(index) and switches the bar with
// commandbar::setCommandButtons.
class MasterButtonBar : public QWidget
{
    Q_OBJECT

public:
    enum Command { AddNew = 0, Edit = 1, Save = 2, Cancel = 3, Delete = 4 };
    static constexpr int count = 5;

    explicit MasterButtonBar(QWidget *parent = nullptr,
                             Qt::Orientation orientation = Qt::Horizontal);

    QPushButton *button(int index) const;

signals:
    void clicked(int index);

private:
    QPushButton *m_buttons[count] = {};
};
