#include "core/fieldrules.h"

#include <QRegularExpression>

namespace fieldrules {

namespace {

constexpr int backspace = 8;
constexpr int tab = 9;
constexpr int enter = 13;

bool isDigitKey(int key)
{
    return key >= '0' && key <= '9';
}

// The upper bound 122 lets "[" to "`" through as well; the keys come upper-cased, so the only
// effect is that these six characters count as letters of a PAN or TAN.
bool isLetterKey(int key)
{
    return key >= 'A' && key <= 122;
}

bool codeKeyFilter(int caretPos, int key, int letters, int digits)
{
    if (key == backspace)
        return true;
    if (caretPos < letters)
        return isLetterKey(key);
    if (caretPos < letters + digits)
        return isDigitKey(key);
    if (caretPos == letters + digits)
        return isLetterKey(key);
    return false;
}

bool isCapital(QChar ch)
{
    return ch >= u'A' && ch <= u'Z';
}

// The endings are searched as one text, so a prefix of an entry (".C", ".CO") and even a run
// across two entries pass; ".As" is upper-cased with the rest.
const QString &validEndings()
{
    static const QString endings = QStringLiteral(
        ".COM.EDU.GOV.NET.BIZ.ORG.TV"
        ".AF.AL.DZ.As.AD.AO.AI.AQ.AG.AP.AR.AM.AW.AU.AT.AZ.BS.BH.BD.BB.BY"
        ".BE.BZ.BJ.BM.BT.BO.BA.BW.BV.BR.IO.BN.BG.BF.MM.BI.KH.CM.CA.CV.KY"
        ".CF.TD.CL.CN.CX.CC.CO.KM.CG.CD.CK.CR.CI.HR.CU.CY.CZ.DK.DJ.DM.DO"
        ".TP.EC.EG.SV.GQ.ER.EE.ET.FK.FO.FJ.FI.CS.SU.FR.FX.GF.PF.TF.GA.GM.GE.DE"
        ".GH.GI.GB.GR.GL.GD.GP.GU.GT.GN.GW.GY.HT.HM.HN.HK.HU.IS.IN.ID.IR.IQ"
        ".IE.IL.IT.JM.JP.JO.KZ.KE.KI.KW.KG.LA.LV.LB.LS.LR.LY.LI.LT.LU.MO.MK.MG"
        ".MW.MY.MV.ML.MT.MH.MQ.MR.MU.YT.MX.FM.MD.MC.MN.MS.MA.MZ.NA"
        ".NR.NP.NL.AN.NT.NC.NZ.NI.NE.NG.NU.NF.KP.MP.NO.OM.PK.PW.PA.PG.PY"
        ".PE.PH.PN.PL.PT.PR.QA.RE.RO.RU.RW.GS.SH.KN.LC.PM.ST.VC.SM.SA.SN.SC"
        ".SL.SG.SK.SI.SB.SO.ZA.KR.ES.LK.SD.SR.SJ.SZ.SE.CH.SY.TJ.TW.TZ.TH.TG.TK"
        ".TO.TT.TN.TR.TM.TC.TV.UG.UA.AE.UK.US.UY.UM.UZ.VU.VA.VE.VN.VG.VI"
        ".WF.WS.EH.YE.YU.ZR.ZM.ZW").toUpper();
    return endings;
}

DateFailure dateFailure(const QString &text, QDate correctedDate, const QString &field)
{
    return {{{text, appTitle, MessageIcon::Critical, MessageButtons::Ok}, field}, correctedDate};
}

} // namespace

int toUpperKey(int key)
{
    return key >= 97 && key <= 123 ? key - 32 : key;
}

int alnumKeyFilter(int key)
{
    if (key >= 65 && key <= 91)
        return key;
    if (key >= 97 && key <= 123)
        return key - 32;
    if (key == backspace || key == tab || key == '-' || key == enter || isDigitKey(key))
        return key;
    return 0;
}

bool panKeyFilter(int caretPos, int key)
{
    return codeKeyFilter(caretPos, key, 5, 4);
}

bool tanKeyFilter(int caretPos, int key)
{
    return codeKeyFilter(caretPos, key, 4, 5);
}

NumericKey numericKeyFilter(const QString &text, int key, bool noMinus, bool noPoint)
{
    if (key == backspace || key == tab || key == enter || key == '&' || key == '(')
        return {key, false};
    if (key == '-')
        return {noMinus ? 0 : key, false};
    if (key == '.') {
        if (noPoint)
            return {0, false};
        if (text.trimmed().contains(u'.'))
            return {0, true};
        return {key, false};
    }
    if (isDigitKey(key))
        return {key, false};
    return {0, true};
}

bool isValidPan(const QString &text)
{
    const qsizetype length = text.trimmed().size();
    if (length == 0)
        return true;
    if (length < 10)
        return false;
    for (int i = 0; i < 10; ++i) {
        const QChar ch = text.at(i);
        const bool ok = i >= 5 && i < 9 ? ch >= u'0' && ch <= u'9' : isCapital(ch);
        if (!ok)
            return false;
    }
    return true;
}

bool isValidEmail(const QString &address, QString &emailError)
{
    emailError.clear();

    QString lastSegment = address;
    while (lastSegment.contains(u'.'))
        lastSegment = lastSegment.mid(lastSegment.indexOf(u'.') + 1);

    static const QString forbiddenRun = QStringLiteral("(){}[]/\\|<>~`!+-?&,*#$%^");
    const qsizetype firstAt = address.indexOf(u'@');

    if (address.isEmpty()) {
        emailError += QStringLiteral("<BR>You did not enter an email address!");
    } else if (firstAt < 0) {
        emailError += QStringLiteral("<BR>Your email address does not contain an @ sign.");
    } else if (address.contains(forbiddenRun)) {
        emailError += QStringLiteral("<BR>Your email address contain invalid charector");
    } else if (firstAt == 0) {
        emailError += QStringLiteral(
            "<BR>Your @ sign can not be the first character in your email address!");
    } else if (address.contains(u' ')) {
        emailError += QStringLiteral("<BR>Email address cannot contain spaces!");
    } else if (address.contains(QStringLiteral(".."))) {
        emailError += QStringLiteral("<BR>Email address contain .. not allowed !");
    } else if (firstAt == address.size() - 1) {
        emailError += QStringLiteral(
            "<BR>Your @sign can not be the last character in your email address!");
    } else if (!hasValidEnding(lastSegment)) {
        emailError += QStringLiteral("<BR>Your email address is not carrying a valid ending!")
                      + QStringLiteral("<BR>It must be one of the following...")
                      + QStringLiteral("<BR>.com, .net, .gov, .org, .edu, .biz, .tv Or included "
                                       "country's assigned country code");
    } else if (address.size() < 6) {
        emailError += QStringLiteral(
            "<BR>Your email address is shorter than 6 characters which is impossible.");
    }

    // The count of "@" signs was only ever set to 1, never added to, so its complaint
    // ("You have more than 1 @ sign in your email address") cannot arise: two signs pass.
    return emailError.isEmpty();
}

bool hasValidEnding(const QString &segment)
{
    QString ending = segment.startsWith(u'.') ? segment : u'.' + segment;
    return validEndings().contains(ending.toUpper());
}

std::optional<FieldFailure> isBlank(const QString &text, const QString &message,
                                    const QString &field)
{
    if (!text.trimmed().isEmpty())
        return std::nullopt;
    const QString title = QStringLiteral("Invalid Entry");
    if (message.isEmpty())
        return FieldFailure{{cannotTakeBlank, title, MessageIcon::Critical, MessageButtons::Ok},
                            field};
    return FieldFailure{{message, title, MessageIcon::Information, MessageButtons::Ok}, field};
}

std::optional<FieldFailure> checkMaxDigits(const QString &text, int maximum,
                                           const QString &field)
{
    if (QString(text).remove(u'.').size() <= maximum)
        return std::nullopt;
    return FieldFailure{{QStringLiteral("Maximum Len allowed = ") + QString::number(maximum),
                         appTitle, MessageIcon::Critical, MessageButtons::Ok},
                        field};
}

QDate typedDate(const QString &text)
{
    const QString trimmed = text.trimmed();
    static const QRegularExpression separated(
        QStringLiteral("^(\\d{1,2})[/.-](\\d{1,2})[/.-](\\d{4}|\\d{2})$"));
    static const QRegularExpression digitsOnly(QStringLiteral("^(\\d{2})(\\d{2})(\\d{4})$"));
    QRegularExpressionMatch parts = separated.match(trimmed);
    if (!parts.hasMatch())
        parts = digitsOnly.match(trimmed);
    if (!parts.hasMatch())
        return {};
    int year = parts.captured(3).toInt();
    if (parts.captured(3).size() == 2)
        year += 2000;
    return QDate(year, parts.captured(2).toInt(), parts.captured(1).toInt());
}

std::optional<DateFailure> checkDateGiven(QDate date, const QString &field)
{
    if (date.isValid())
        return std::nullopt;
    return dateFailure(enterDateText, QDate(), field);
}

std::optional<DateFailure> checkNotBeforeQuarter(QDate date, QDate quarterFrom,
                                                 const QString &field)
{
    if (quarterFrom.isValid() && date < quarterFrom) {
        return dateFailure(QStringLiteral("Date should not be less than the Quarter Start Date"),
                           quarterFrom, field);
    }
    return std::nullopt;
}

std::optional<DateFailure> checkDepositDate(QDate date, QDate challanDate, QDate quarterFrom,
                                            QDate quarterTo, const QString &field)
{
    const QString outsideQuarter = QStringLiteral("Date should be within the Quarter Date");
    if (challanDate.isValid() && date > challanDate) {
        return dateFailure(QStringLiteral("Date should not be greater than the Challan Date"),
                           challanDate, field);
    }
    if (quarterFrom.isValid() && date < quarterFrom)
        return dateFailure(outsideQuarter, quarterFrom, field);
    if (quarterTo.isValid() && date > quarterTo)
        return dateFailure(outsideQuarter, quarterTo, field);
    return std::nullopt;
}

QDate sessionDate(const QString &text)
{
    // "d" and "M" read one or two digits, so 01/04/2024 and 1/4/2024 both parse.
    return QDate::fromString(text.trimmed(), QStringLiteral("d/M/yyyy"));
}

} // namespace fieldrules
