#include "core/frmabout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#ifndef KELVORA_VERSION
#define KELVORA_VERSION ""
#endif

FrmAbout::FrmAbout(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Kelvora"));

    auto *name = new QLabel(QStringLiteral("<h2>Kelvora</h2>"), this);
    name->setObjectName(QStringLiteral("lblTitle"));
    auto *purpose = new QLabel(QStringLiteral("Electronic Tax Deduction at Source"), this);
    purpose->setObjectName(QStringLiteral("lblDescription"));
    auto *forms = new QLabel(QStringLiteral("Quarterly TDS and TCS statements of Forms 24Q, 26Q, "
                                            "27Q and 27EQ,\ntheir return files, Form 27A and "
                                            "Form 16A certificates."),
                             this);
    auto *version = new QLabel(QStringLiteral("Version %1").arg(QLatin1String(KELVORA_VERSION)),
                               this);
    version->setObjectName(QStringLiteral("lblVersion"));

    auto *ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(name);
    layout->addWidget(purpose);
    layout->addWidget(forms);
    layout->addWidget(version);
    layout->addSpacing(12);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
