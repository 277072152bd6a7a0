#include "exchange/frmimport.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "exchange/importerror.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <climits>

using screenroutines::commandButton;

namespace {

QDateEdit *yearDate(const QString &name, const QDate &date, QWidget *parent)
{
    auto *edit = new QDateEdit(parent);
    edit->setObjectName(name);
    edit->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    edit->setDate(date);
    edit->setButtonSymbols(QAbstractSpinBox::NoButtons);
    // Shows the period that every imported employee takes; it is the session's, not a choice.
    edit->setEnabled(false);
    return edit;
}

} // namespace

FrmImport::FrmImport(Session &session, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_boxes(boxes),
      m_import(session.store),
      m_path(new QLineEdit(this)),
      m_open(commandButton(QStringLiteral("..."), QStringLiteral("cmdOpen"), this)),
      m_yearStart(yearDate(QStringLiteral("dtpFAStartDate"), session.asstStartDt, this)),
      m_yearEnd(yearDate(QStringLiteral("dtpFAEndDate"), session.asstEndDt, this)),
      m_bar(new QProgressBar(this)),
      m_message(new QLabel(this)),
      m_importButton(
          commandButton(QStringLiteral("&Import Data"), QStringLiteral("cmdimport"), this)),
      m_close(commandButton(QStringLiteral("&Close"), QStringLiteral("cmdClose"), this))
{
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(QStringLiteral("Import Data from Previous to Current Database"));

    auto *label = new QLabel(QStringLiteral("Select Previous Database :"), this);
    label->setObjectName(QStringLiteral("Label1"));
    m_path->setObjectName(QStringLiteral("txtPath"));
    m_path->setReadOnly(true);
    m_open->setFixedWidth(m_open->fontMetrics().horizontalAdvance(m_open->text()) + 24);
    m_bar->setObjectName(QStringLiteral("pBar"));
    m_bar->hide();
    m_message->setObjectName(QStringLiteral("lblMsg"));
    m_importButton->setEnabled(false);

    auto *source = new QGridLayout;
    source->addWidget(label, 0, 0, 1, 2);
    source->addWidget(m_path, 1, 0);
    source->addWidget(m_open, 1, 1);
    auto *year = new QHBoxLayout;
    year->addWidget(new QLabel(QStringLiteral("Financial Year :"), this));
    year->addWidget(m_yearStart);
    year->addWidget(m_yearEnd);
    year->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_importButton);
    buttons->addWidget(m_close);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(source);
    layout->addLayout(year);
    layout->addWidget(m_message);
    layout->addWidget(m_bar);
    layout->addStretch();
    layout->addLayout(buttons);

    connect(m_open, &QPushButton::clicked, this, &FrmImport::chooseSource);
    connect(m_importButton, &QPushButton::clicked, this, &FrmImport::importData);
    connect(m_close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    m_open->setFocus();
    screenroutines::setPlacement(this, screenroutines::Placement::Middle);
    resize(560, 210);
}

void FrmImport::closeEvent(QCloseEvent *event)
{
    if (m_running)
        event->ignore();
    else
        event->accept();
}

void FrmImport::chooseSource()
{
    const QString current = m_path->text().trimmed();
    const QString folder =
        current.isEmpty() ? m_session.store.folder() : QFileInfo(current).absolutePath();
    QFileDialog dialog(this, QStringLiteral("Select Previous Database"), folder,
                       QStringLiteral("Kelvora Database (*.db)"));
    dialog.setObjectName(QStringLiteral("cmd"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    m_path->setText(chosen ? QDir::toNativeSeparators(dialog.selectedFiles().constFirst())
                           : QString());
    m_importButton->setEnabled(chosen);
}

void FrmImport::importData()
{
    setRunning(true);
    Message outcome{completedText, appTitle, MessageIcon::Information};
    try {
        m_import.run(QDir::fromNativeSeparators(m_path->text().trimmed()), m_session.asstStartDt,
                     m_session.asstEndDt,
                     [this](const QString &table, qint64 copied, qint64 total) {
                         showProgress(table, copied, total);
                     });
    } catch (const ImportError &error) {
        outcome = {error.reason() + QStringLiteral("\n\n") + ImportError::nothingImportedText,
                   appTitle, MessageIcon::Critical};
    }
    m_bar->hide();
    m_message->clear();
    setRunning(false);
    m_boxes.show(outcome);
}

void FrmImport::showProgress(const QString &table, qint64 copied, qint64 total)
{
    m_message->setText(QStringLiteral("Importing ") + table.mid(3));
    if (total == 0) {
        m_bar->setRange(1, 1);
        m_bar->setValue(1);
    } else {
        m_bar->setRange(0, int(std::min<qint64>(total, INT_MAX)));
        m_bar->setValue(int(std::min<qint64>(copied, INT_MAX)));
    }
    m_bar->show();
    // Repaints and the window system's own events only: a click now could reach the store in
    // the middle of the import. The clicks held back are dealt with when it is over.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FrmImport::setRunning(bool running)
{
    if (!running) {
        // The clicks held back during the import reach the buttons while they are still off.
        QCoreApplication::processEvents();
    }
    m_running = running;
    for (QPushButton *button : {m_open, m_importButton, m_close})
        button->setEnabled(!running);
}

