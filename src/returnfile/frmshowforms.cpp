#include "returnfile/frmshowforms.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

FrmShowForms::FrmShowForms(const QString &startFolder, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_startFolder(startFolder),
      m_boxes(boxes),
      m_path(new QLineEdit(this)),
      m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmShowForms"));
    setWindowTitle(QStringLiteral("     Show Forms"));

    auto *pathLabel = new QLabel(QStringLiteral("Select Path"), this);
    pathLabel->setBuddy(m_path);
    m_path->setObjectName(QStringLiteral("txtPath"));

    auto *browse = new QToolButton(this);
    browse->setObjectName(QStringLiteral("cmdFilePath"));
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(QStringLiteral("Choose the file"));

    auto *show = new QPushButton(QStringLiteral("Sho&w"), this);
    show->setObjectName(QStringLiteral("cmdShow"));
    auto *refresh = new QPushButton(QStringLiteral("&Refresh"), this);
    refresh->setObjectName(QStringLiteral("cmdRefresh"));
    auto *close = new QPushButton(QStringLiteral("Cl&ose"), this);
    close->setObjectName(QStringLiteral("cmdClose"));

    // Return files are single-byte text whose fields line up by position: a fixed-width font
    // without wrapping keeps each record on its own line.
    m_text->setObjectName(QStringLiteral("rtxt"));
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto *pathRow = new QHBoxLayout;
    pathRow->addWidget(m_path, 1);
    pathRow->addWidget(browse);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(show);
    buttons->addWidget(refresh);
    buttons->addWidget(close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(pathLabel);
    layout->addLayout(pathRow);
    layout->addLayout(buttons);
    layout->addWidget(m_text, 1);

    // A path and a shown file never disagree: any change of the path empties the view.
    connect(m_path, &QLineEdit::textChanged, m_text, &QPlainTextEdit::clear);
    connect(browse, &QToolButton::clicked, this, &FrmShowForms::choosePath);
    connect(show, &QPushButton::clicked, this, &FrmShowForms::showFile);
    connect(refresh, &QPushButton::clicked, this, &FrmShowForms::refresh);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    resize(640, 480);
}

bool FrmShowForms::showFile()
{
    m_text->clear();
    const QString path = m_path->text().trimmed();
    if (path.isEmpty()) {
        fail(QStringLiteral("Please select the file to show."));
        return false;
    }
    const QFileInfo info(path);
    if (!info.exists()) {
        fail(QStringLiteral("The file %1 was not found.").arg(QDir::toNativeSeparators(path)));
        return false;
    }
    if (!info.isFile()) {
        fail(QStringLiteral("%1 is a folder, not a file.").arg(QDir::toNativeSeparators(path)));
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(QStringLiteral("The file %1 could not be read: %2")
                 .arg(QDir::toNativeSeparators(path), file.errorString()));
        return false;
    }
    QString text = QString::fromLatin1(file.readAll());
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    m_text->setPlainText(text);
    return true;
}

void FrmShowForms::choosePath()
{
    const QString chosen = QFileDialog::getOpenFileName(this, QStringLiteral("Select File"),
                                                        m_startFolder,
                                                        QStringLiteral("Text (*.txt)"));
    if (!chosen.isEmpty())
        m_path->setText(QDir::toNativeSeparators(chosen));
}

void FrmShowForms::refresh()
{
    m_path->clear();
    m_text->clear();
}

void FrmShowForms::fail(const QString &text)
{
    m_boxes.show({text, appTitle, MessageIcon::Critical});
}
