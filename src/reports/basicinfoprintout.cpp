#include "reports/basicinfoprintout.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/records.h"
#include "reports/reportbuilder.h"

#include <QSqlRecord>

namespace basicinfoprintout {

namespace {

constexpr double labelWidth = 0.55;

/// The fixed texts that set the forms' pages apart.
struct FormTexts
{
    const char *title;
    QStringList lines;
    const char *particulars; ///< empty on 24Q, whose page has numbered items of its own
    const char *periodTo;
};

const QString sectionsLine = QStringLiteral(
    "(See sections 193, 194, 194A, 194B, 194BB, 194C, 194D, 194EE, 194F,194G, 194H, 194-I,  "
    "194J, 194LA and rule 37)");
const char *const deductionParticulars = "1. Particulars of the person making deduction of tax";

FormTexts textsOf(FormKind kind)
{
    switch (kind) {
    case FormKind::Form24Q:
        return {"FORM NO- 24Q",
                {QStringLiteral("Annual Return of 'Salaries' under Section 206 of the Income Tax "
                                "Act, 1961")},
                "", " To : "};
    case FormKind::Form26Q:
        return {"FORM - 26Q",
                {sectionsLine,
                 QStringLiteral("Annual Return of deduction of tax under section 206 of I.T. "
                                "Act, 1961 in respect of all payments other than \"Salaries\"")},
                deductionParticulars, " To : "};
    case FormKind::Form27Q:
        return {"FORM NO. 27Q (Contd..)",
                {QStringLiteral(
                    "Statment of Deduction of Tax from Interest, Dividends or any Other sum "
                    "payable to(i) persons, not being Companies who are Non-Residents of "
                    "Residents but Not Ordinarily Resident, and (ii) Companies which are neither "
                    "Indian Companies nor Companies Which have made the Prescribed Arrangements "
                    "for the Declaration and Payment of Dividends within India, for the period ")},
                deductionParticulars, " To: "};
    case FormKind::Form27EQ:
        return {"FORM - 27EQ", {sectionsLine},
                "1. Particulars of the person making Collection of tax", " To : "};
    }
    return {};
}

const char *const addressRows[] = {"Flat / Door /Block No", "Name of Premises / Building",
                                   "Road / Street / Lane", "Area / Locality",
                                   "Town / District / City"};

QString shown(const QString &value)
{
    return QStringLiteral(" : ") + value;
}

QString yesNo(const QVariant &flag)
{
    return shown(flag.toInt() != 0 ? QStringLiteral("Yes") : QStringLiteral("No"));
}

/// The state's name for a state code, found through its id as the form always has.
QString stateName(const DataStore &store, const QString &code)
{
    const QVariant id = store.scalar(
        QStringLiteral("SELECT StateID FROM mstState WHERE StateCode = ?"), {code});
    if (!id.isValid())
        return {};
    return records::lookupText(store, QStringLiteral("mstState"), QStringLiteral("StateID"),
                               QStringLiteral("StateName"), id.toInt());
}

void address(ReportBuilder &report, const QSqlQuery &row, const QString &prefix,
             const QString &state, const QString &pin)
{
    for (int line = 0; line < 5; ++line) {
        report.field(QStringLiteral("      ") + QLatin1String(addressRows[line]),
                     shown(records::nullToText(row.value(prefix + QStringLiteral("Address%1")
                                                                     .arg(line + 1)))),
                     labelWidth);
    }
    report.field(QStringLiteral("      State"), shown(state), labelWidth);
    report.field(QStringLiteral("      PIN"), shown(pin), labelWidth);
}

} // namespace

std::optional<Report> build(const DataStore &store, const FormTraits &form, int compId,
                            int basicInfoId, const QString &quarter,
                            const PrintoutHeading &heading)
{
    QSqlQuery row = store.exec(
        QStringLiteral("SELECT * FROM %1 WHERE CompID = ? AND BasicIfoID = ? AND Quarter = ?")
            .arg(form.basicInfoTable),
        {compId, basicInfoId, quarter});
    if (!row.next())
        return std::nullopt;
    const auto text = [&row](const char *column) {
        return records::nullToText(row.value(QLatin1String(column)));
    };
    const FormTexts texts = textsOf(form.kind);
    ReportBuilder report(QStringLiteral("Form No %1 (Basic Information)")
                             .arg(form.reportForm.mid(4)));
    report.setPageHead({QStringLiteral("Run Date :"), heading.runDate, QString()});
    report.title(QLatin1String(texts.title));
    for (const QString &line : texts.lines)
        report.text(line, ReportFont::Normal, Qt::AlignHCenter);
    report.text(heading.period(QLatin1String(texts.periodTo)), ReportFont::Bold,
                Qt::AlignHCenter);
    report.space(10);

    const QString state = stateName(store, text("StateCode"));
    if (form.hasSalaryDetail) {
        report.field(QStringLiteral("1 (a) Tax Deduction Account Number"), shown(text("TanNO")),
                     labelWidth);
        report.field(QStringLiteral("(b) Permanent Account Number"), shown(text("PanNo")),
                     labelWidth);
        report.field(QStringLiteral("2 (a) Name Of Employer"), shown(text("CompName")),
                     labelWidth);
        report.text(QStringLiteral("(b) Address of the Employer"));
        address(report, row, QString(), state, text("Pincode"));
        report.field(QStringLiteral("3 (a) Has Address of the Employer Changed ?"),
                     yesNo(row.value(QStringLiteral("Employer"))), labelWidth);
        report.field(QStringLiteral("3 (b) Has Address of the Person Changed ?"),
                     yesNo(row.value(QStringLiteral("Salary"))), labelWidth);
        report.field(QStringLiteral("4 (a) Name Of the Person"), shown(text("PersonName")),
                     labelWidth);
        // The person's state has always been looked up by the employer's state code.
        address(report, row, QStringLiteral("p"), state, text("pPincode"));
        return report.finish();
    }

    report.text(QLatin1String(texts.particulars), ReportFont::Bold);
    report.field(QStringLiteral("(a)  Name"), shown(text("CompName")), labelWidth);
    report.text(QStringLiteral("(b)  Address :"));
    address(report, row, QString(), state, text("Pincode"));
    report.field(QStringLiteral("(c) Tax Deduction Account Number"), shown(text("TanNO")),
                 labelWidth);
    report.field(QStringLiteral("(d) Permanent Account Number"), shown(text("PanNo")),
                 labelWidth);
    report.space(6);
    report.field(QStringLiteral("2.  Has address of the person making deduction of tax changed ?"),
                 yesNo(row.value(QStringLiteral("Employer"))), labelWidth);
    report.space(6);
    report.text(QStringLiteral("3.  Status as defined within the meaning of section 204 read "
                               "with rule 30"));
    const bool government = row.value(QStringLiteral("Status")).toInt() != 0;
    report.field(QStringLiteral("      Central Govt."),
                 shown(government ? QStringLiteral("Yes") : QStringLiteral("No")), labelWidth);
    report.field(QStringLiteral("      Other."),
                 shown(government ? QStringLiteral("No") : QStringLiteral("Yes")), labelWidth);
    return report.finish();
}

} // namespace basicinfoprintout
