#pragma once

#include "reports/certificate16a.h"
#include "reports/picklistscreen.h"

struct Session;

/// The older Form 16A of 26Q: a Statement by its company's name, its deductee rows chosen in a
/// list, a certificate for each, one after another or each on a page of its own.
class FrmCertificate16A : public PickListScreen
{
    Q_OBJECT

public:
    FrmCertificate16A(const Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// The OK button: the certificates of the chosen rows, shown in a viewer.
    void showReport() override;

private:
    QList<PickListRow> rowsOf(const QString &company) const override;

    const Session &m_session;
    Certificate16A m_certificates;
};
