#include "core/companyselection.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/session.h"
#include "core/formtraits.h"

#include <QSqlQuery>
#include <algorithm>

namespace {

/// The Form 16A types lead to the certificate report, with no Statement to look up.
const QStringList form16ATypes = {"Form16A26Q", "Form16A27Q", "Form16A27EQ"};

} // namespace

CompanySelection::CompanySelection(Session &session, MessageBoxes &boxes)
    : m_session(session), m_boxes(boxes)
{
}

QStringList CompanySelection::groupNames() const
{
    return records::comboTexts(m_session.store, {}, {}, false,
                               QStringLiteral("SELECT GroupName, GroupID FROM mstGroup "
                                              "ORDER BY GroupID"));
}

int CompanySelection::groupId(const QString &groupName) const
{
    return records::lookupId(m_session.store, QStringLiteral("GroupID"),
                             QStringLiteral("mstGroup"), QStringLiteral("GroupName"), groupName);
}

QList<CompanySelection::Company> CompanySelection::companies(int groupId) const
{
    QSqlQuery query = m_session.store.exec(
        QStringLiteral("SELECT CompID, CompName, DStatus FROM mstCompany "
                       "WHERE GroupID = ? AND AsstID = ? ORDER BY CompName"),
        {groupId, m_session.asstId});
    QList<Company> result;
    while (query.next()) {
        result.append({records::nullToText(query.value(1)), query.value(0).toInt(),
                       records::nullToText(query.value(2))});
    }
    return result;
}

int CompanySelection::lastGroupIndex(const QStringList &groupNames) const
{
    // By the id that the selection reads from each name, not by the text of the name.
    if (m_session.curGroupId != 0) {
        for (int index = 0; index < groupNames.size(); ++index) {
            if (groupId(groupNames[index]) == m_session.curGroupId)
                return index;
        }
    }
    return 0;
}

int CompanySelection::lastQuarterIndex() const
{
    return std::max(0, quarter::indexOf(m_session.curQuarter));
}

quarter::Period CompanySelection::applyQuarter(int index)
{
    const quarter::Period period = quarter::forIndex(index, m_session.asstStartYear);
    if (!period.isValid()) {
        m_boxes.show({quarter::invalidChoiceText, appTitle, MessageIcon::Critical});
        return period;
    }
    m_session.quarterFromDt = period.fromDate;
    m_session.quarterToDt = period.toDate;
    return period;
}

CompanySelection::Outcome CompanySelection::select(const Choice &choice)
{
    m_session.curGroupId = int(numbers::val(choice.groupIdText));
    m_session.curQuarter = quarter::sessionCode(applyQuarter(choice.quarterIndex).code);

    if (choice.groupText.trimmed().isEmpty()) {
        m_boxes.show({noGroupText, appTitle, MessageIcon::Information});
        Outcome outcome;
        outcome.focus = QStringLiteral("CmbGroup");
        return outcome;
    }

    // The Form 16A report screen takes the quarter's text whatever form follows.
    Outcome outcome;
    if (const FormTraits *form = findForm(m_session.curFormType))
        outcome = selectStatement(choice, form->basicInfoTable, form->screenName);
    else if (form16ATypes.contains(m_session.curFormType))
        outcome = selectForm16A(choice);
    outcome.quarterText = choice.quarterText;
    return outcome;
}

CompanySelection::Outcome CompanySelection::selectStatement(const Choice &choice,
                                                            const QString &table,
                                                            const QString &screen)
{
    if (!choice.company)
        return {};
    m_session.curCompId = choice.company->compId;
    m_session.curDeductorStatus = choice.company->status.trimmed();

    // The list may be older than the company master: the deductor type is read afresh, since a
    // Statement cannot be filed without it.
    const QString storedStatus =
        records::lookupText(m_session.store, QStringLiteral("mstCompany"),
                            QStringLiteral("CompId"), QStringLiteral("DStatus"),
                            m_session.curCompId);
    if (storedStatus.isEmpty()) {
        m_boxes.show({noDeductorTypeText, appTitle, MessageIcon::Information});
        Outcome outcome;
        outcome.focus = QStringLiteral("lstvComp");
        return outcome;
    }

    // No row yet means a new Statement: its screen creates the row at the first save.
    const QVariant basicInfoId = m_session.store.scalar(
        QStringLiteral("SELECT BasicIfoID FROM %1 WHERE CompID = ? AND AsstID = ? "
                       "AND Quarter = ?").arg(table),
        {m_session.curCompId, m_session.asstId, m_session.curQuarter});
    m_session.curBasicInfoId = basicInfoId.isValid() ? basicInfoId.toInt() : 0;

    Outcome outcome;
    outcome.closeSelection = true;
    if (m_session.printMode) {
        m_session.printMode = false;
        outcome.next = Next::Report;
        outcome.screen = reportScreen;
    } else {
        outcome.next = Next::Statement;
        outcome.screen = screen;
    }
    return outcome;
}

CompanySelection::Outcome CompanySelection::selectForm16A(const Choice &choice)
{
    if (!choice.company)
        return {};
    m_session.curCompId = choice.company->compId;
    if (!m_session.printMode)
        return {};
    m_session.printMode = false;
    Outcome outcome;
    outcome.next = Next::Form16AReport;
    outcome.screen = form16AReportScreen;
    outcome.closeSelection = true;
    return outcome;
}
