#pragma once

#include <QWidget>
#include <chrono>
#include <functional>

class MessageBoxes;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;

/// The Backup & Restore window: a backup of the store into a folder, and a restore from one of
/// the backups listed there.
class BackupWindow : public QWidget
{
    Q_OBJECT

public:
    static inline const QString title = QStringLiteral("Backup & Restore");

    /// @p lockWait: how long an operation waits for the program to let go of the store.
    /// @p onClose runs when the window closes (the program's menu has it start Kelvora again).
    BackupWindow(const QString &storePath, std::chrono::milliseconds lockWait,
                 MessageBoxes &boxes, std::function<void()> onClose, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void chooseFolder();
    void listBackups(const QString &select = {});
    void backUp();
    void restore();
    void setBusy(bool busy);
    void showProgress(int copied, int total);

    QString m_storePath;
    std::chrono::milliseconds m_lockWait;
    MessageBoxes &m_boxes;
    std::function<void()> m_onClose;
    bool m_busy = false;

    QLineEdit *m_folder;
    QTreeWidget *m_list;
    QProgressBar *m_progress;
    QLabel *m_status;
    QList<QPushButton *> m_buttons;
};
