#include "reports/frmcertificate16a.h"

#include "core/messageboxes.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "reports/reportmessages.h"
#include "reports/reportpreview.h"

FrmCertificate16A::FrmCertificate16A(const Session &session, MessageBoxes &boxes,
                                     QWidget *parent)
    : PickListScreen({"frmCertificate16A", "Form 16 A", "Company", "cmbCompany", "Deductee",
                      "lstDeductee"},
                     boxes, parent),
      m_session(session),
      m_certificates(session.store)
{
    showOwners([this] { return m_certificates.companyNames(); });
}

void FrmCertificate16A::showReport()
{
    if (rowCount() == 0) {
        boxes().show({Certificate16A::noDeductee, appTitle, MessageIcon::Information});
        return;
    }
    QList<int> keys;
    for (const QVariant &key : tickedKeys())
        keys.append(key.toInt());
    if (keys.isEmpty()) {
        boxes().show({Certificate16A::noneSelected, appTitle, MessageIcon::Information});
        return;
    }
    try {
        std::optional<Report> report = m_certificates.report(
            keys, pageBreak(), m_session.asstStartDt, m_session.asstEndDt);
        if (!report) {
            boxes().show({reportmessages::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this, std::make_shared<const Report>(std::move(*report)), boxes(),
                            QStringLiteral("crCertificate16A"));
    } catch (const StoreError &) {
        fail();
    }
}

QList<PickListRow> FrmCertificate16A::rowsOf(const QString &company) const
{
    QList<PickListRow> rows;
    for (const Certificate16A::Row &row : m_certificates.deductees(company))
        rows.append({row.name, row.id});
    return rows;
}
