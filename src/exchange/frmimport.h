#pragma once

#include "exchange/masterimport.h"

#include <QWidget>

class MessageBoxes;
class QDateEdit;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
struct Session;

/// "Import Data from Previous to Current Database": the user picks last year's data store and
/// its masters replace those of the current one. MasterImport does the work; this screen picks
/// the file, shows the progress and keeps the user's hands off while it runs.
class FrmImport : public QWidget
{
    Q_OBJECT

public:
    static inline const QString completedText = QStringLiteral("Data Import completed...");

    FrmImport(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void chooseSource();
    void importData();
    void showProgress(const QString &table, qint64 copied, qint64 total);
    void setRunning(bool running);

    Session &m_session;
    MessageBoxes &m_boxes;
    MasterImport m_import;
    bool m_running = false;

    QLineEdit *m_path;
    QPushButton *m_open;
    QDateEdit *m_yearStart;
    QDateEdit *m_yearEnd;
    QProgressBar *m_bar;
    QLabel *m_message;
    QPushButton *m_importButton;
    QPushButton *m_close;
};
