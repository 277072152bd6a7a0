#include "backupwindow.h"

#include "backup/backupcatalog.h"
#include "backup/backuperror.h"
#include "backup/backupfolder.h"
#include "backup/storebackup.h"
#include "core/messageboxes.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QString shownTime = QStringLiteral("dd/MM/yyyy HH:mm:ss");

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

BackupWindow::BackupWindow(const QString &storePath, std::chrono::milliseconds lockWait,
                           MessageBoxes &boxes, std::function<void()> onClose, QWidget *parent)
    : QWidget(parent),
      m_storePath(storePath),
      m_lockWait(lockWait),
      m_boxes(boxes),
      m_onClose(std::move(onClose)),
      m_folder(new QLineEdit(shown(backupfolder::defaultFor(storePath)))),
      m_list(new QTreeWidget),
      m_progress(new QProgressBar),
      m_status(new QLabel)
{
    setObjectName(QStringLiteral("frmBackup"));
    setWindowTitle(title);

    auto *store = new QLineEdit(shown(QFileInfo(storePath).absoluteFilePath()));
    store->setObjectName(QStringLiteral("txtStore"));
    store->setReadOnly(true);
    m_folder->setObjectName(QStringLiteral("txtFolder"));
    connect(m_folder, &QLineEdit::editingFinished, this, [this] { listBackups(); });
    const auto button = [this](const QString &name, const QString &caption) {
        auto *created = new QPushButton(caption);
        created->setObjectName(name);
        m_buttons << created;
        return created;
    };
    QPushButton *browse = button(QStringLiteral("cmdBrowse"), QStringLiteral("&Browse..."));
    connect(browse, &QPushButton::clicked, this, &BackupWindow::chooseFolder);
    QPushButton *backUpNow = button(QStringLiteral("cmdBackup"), QStringLiteral("Back &Up Now"));
    connect(backUpNow, &QPushButton::clicked, this, &BackupWindow::backUp);
    QPushButton *restoreButton = button(QStringLiteral("cmdRestore"),
                                        QStringLiteral("&Restore Selected..."));
    connect(restoreButton, &QPushButton::clicked, this, &BackupWindow::restore);
    QPushButton *close = button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    m_list->setObjectName(QStringLiteral("lstvBackups"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({QStringLiteral("Backup"), QStringLiteral("Taken"),
                             QStringLiteral("Size"), QStringLiteral("Financial Year"),
                             QStringLiteral("Companies"), QStringLiteral("Statements")});
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &BackupWindow::restore);
    m_progress->setObjectName(QStringLiteral("prgCopy"));
    m_progress->setValue(0);
    m_status->setObjectName(QStringLiteral("lblStatus"));
    m_status->setWordWrap(true);

    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(m_folder, 1);
    folderRow->addWidget(browse);
    auto *fields = new QFormLayout;
    fields->addRow(QStringLiteral("Data store:"), store);
    fields->addRow(QStringLiteral("Backup folder:"), folderRow);
    auto *backUpRow = new QHBoxLayout;
    backUpRow->addWidget(backUpNow);
    backUpRow->addWidget(m_progress, 1);
    auto *commands = new QHBoxLayout;
    commands->addWidget(restoreButton);
    commands->addStretch(1);
    commands->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(backUpRow);
    layout->addWidget(new QLabel(QStringLiteral("Backups in the folder:")));
    layout->addWidget(m_list, 1);
    layout->addWidget(m_status);
    layout->addLayout(commands);
    resize(760, 440);
    listBackups();
}

void BackupWindow::closeEvent(QCloseEvent *event)
{
    // A copy under way is finished first: a half-made backup is no backup.
    if (m_busy) {
        event->ignore();
        return;
    }
    event->accept();
    if (m_onClose)
        m_onClose();
}

void BackupWindow::chooseFolder()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Backup folder"), QDir::fromNativeSeparators(m_folder->text()));
    if (chosen.isEmpty())
        return;
    m_folder->setText(shown(chosen));
    listBackups();
}

void BackupWindow::listBackups(const QString &select)
{
    m_list->clear();
    const QLocale locale;
    for (const BackupEntry &entry :
         backupcatalog::list(QDir::fromNativeSeparators(m_folder->text()))) {
        auto *item = new QTreeWidgetItem(m_list);
        item->setData(0, Qt::UserRole, entry.path);
        item->setText(0, QFileInfo(entry.path).fileName());
        item->setText(1, entry.taken.toString(shownTime));
        item->setText(2, locale.formattedDataSize(entry.size, 1,
                                                   QLocale::DataSizeTraditionalFormat));
        item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        if (entry.path == select)
            m_list->setCurrentItem(item);
        if (!entry.problem.isEmpty()) {
            item->setText(3, entry.problem);
            item->setToolTip(3, entry.problem);
            continue;
        }
        item->setText(3, entry.financialYear);
        item->setText(4, QString::number(entry.companies));
        item->setText(5, QString::number(entry.statements));
        for (int column : {4, 5})
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    if (!m_list->currentItem() && m_list->topLevelItemCount() > 0)
        m_list->setCurrentItem(m_list->topLevelItem(0));
}

void BackupWindow::backUp()
{
    StoreBackup backup(m_storePath, m_lockWait);
    backup.setProgress([this](int copied, int total) { showProgress(copied, total); });
    setBusy(true);
    try {
        const QString written = backup.backUp(QDir::fromNativeSeparators(m_folder->text()),
                                              QDateTime::currentDateTime());
        setBusy(false);
        listBackups(written);
        m_status->setText(QStringLiteral("Backed up to %1.").arg(shown(written)));
        m_boxes.show({QStringLiteral("The data store was backed up to\n%1").arg(shown(written)),
                      title, MessageIcon::Information});
    } catch (const BackupError &error) {
        setBusy(false);
        m_status->setText(QStringLiteral("No backup was written."));
        m_boxes.show({error.text(), title, MessageIcon::Critical});
    }
}

void BackupWindow::restore()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    if (!item) {
        m_boxes.show({QStringLiteral("Choose the backup to restore from the list."), title,
                      MessageIcon::Information});
        return;
    }
    const QString backupPath = item->data(0, Qt::UserRole).toString();
    const QString refusal = StoreBackup::restoreRefusal(backupPath);
    if (!refusal.isEmpty()) {
        m_boxes.show({refusal, title, MessageIcon::Critical});
        return;
    }
    const QString folder = QDir::fromNativeSeparators(m_folder->text());
    const Message question{
        QStringLiteral("Replace the data store with the backup taken %1?\n\n"
                       "The data store as it is now is first kept as a backup in\n%2")
            .arg(item->text(1), shown(folder)),
        title, MessageIcon::Question, MessageButtons::YesNo, true};
    if (m_boxes.show(question) != Answer::Yes)
        return;

    StoreBackup backup(m_storePath, m_lockWait);
    backup.setProgress([this](int copied, int total) { showProgress(copied, total); });
    setBusy(true);
    try {
        const QString safety = backup.restore(backupPath, folder, QDateTime::currentDateTime());
        setBusy(false);
        listBackups(backupPath);
        QString text = QStringLiteral("The data store was restored from\n%1").arg(
            shown(backupPath));
        if (!safety.isEmpty())
            text += QStringLiteral("\n\nThe data store as it was is kept as\n%1").arg(
                shown(safety));
        m_status->setText(QStringLiteral("Restored from %1.").arg(shown(backupPath)));
        m_boxes.show({text, title, MessageIcon::Information});
    } catch (const BackupError &error) {
        setBusy(false);
        listBackups(backupPath);
        m_status->setText(QStringLiteral("Nothing was restored."));
        m_boxes.show({error.text(), title, MessageIcon::Critical});
    }
}

void BackupWindow::setBusy(bool busy)
{
    m_busy = busy;
    for (QPushButton *button : std::as_const(m_buttons))
        button->setEnabled(!busy);
    m_folder->setEnabled(!busy);
    m_list->setEnabled(!busy);
    if (busy) {
        m_progress->setValue(0);
        m_status->setText(QStringLiteral("Copying..."));
    }
}

void BackupWindow::showProgress(int copied, int total)
{
    m_progress->setMaximum(total);
    m_progress->setValue(copied);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
