#pragma once

#include <QWidget>

class MessageBoxes;
class QLineEdit;
class QPlainTextEdit;

/// Shows a generated return file as it is on disk, so that the user can read it without
/// leaving the program.
class FrmShowForms : public QWidget
{
    Q_OBJECT

public:
    /// startFolder: where the file dialog begins, as a rule the folder of generated returns.
    FrmShowForms(const QString &startFolder, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// Loads the file named by the trimmed path into the view; a path that names no readable
    /// file gives a critical box and an empty view. Returns whether the file was shown.
    bool showFile();

private:
    void choosePath();
    void refresh();
    void fail(const QString &text);

    QString m_startFolder;
    MessageBoxes &m_boxes;
    QLineEdit *m_path;
    QPlainTextEdit *m_text;
};
