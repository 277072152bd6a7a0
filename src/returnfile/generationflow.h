#pragma once

#include "core/fieldfailure.h"
#include "core/money.h"
#include "returnfile/returnfilewriter.h"

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>

class DataStore;
class MessageBoxes;
struct FormTraits;

/// What stands on the statement screen when its file is asked for.
struct GenerationRequest
{
    int groupId = 0;
    int compId = 0;
    QString quarter;             ///< "Q1" to "Q4"
    QString basicInfoId;         ///< txtBasicIfoID: "0" or empty before the first save
    QString declaredDeductees;   ///< txtNoDeductee, as typed
    QString declaredChallans;    ///< txtNoChallan, as typed
    int listedAnnexureRows = 0;  ///< rows of the open challan's list
    int listedChallans = 0;      ///< rows of the challan list
};

/// The summary panel that stands between the checks and the generation.
struct GenerationPanel
{
    int groupId = 0;
    int compId = 0;
    int basicInfoId = 0;
    QString groupName;
    QString companyName;         ///< trimmed
    QString tan;
    QString pan;
    QString formType;            ///< "26Q"
    QString quarter;
    QString asstYear;
    QString fileName;            ///< the whole path; the user may choose another
    int annexureRows = 0;        ///< all annexure rows of the Statement
    Money deposited;             ///< sum of the challans' Total
    Money amountPaid;            ///< sum of the annexure rows' AmtOfPayment
    Money taxDeducted;           ///< sum of the annexure rows' TaxAmount
    QString previousReceiptNo;   ///< empty unless a revised return has a receipt number
    QString deductorStatus;      ///< DStatus of the company
    QString deductorType;        ///< its category's description
    QString existingAssessee = QStringLiteral("Y");
};

/// The checks' outcome: a failure to show, or the panel to open; neither when the save refused.
struct GenerationPreparation
{
    std::optional<FieldFailure> failure;
    std::optional<GenerationPanel> panel;
};

/// Refused: a value of the Statement that the file cannot carry; FileFailed: the file system.
enum class GenerationOutcome { Declined, LogFailed, FileFailed, Refused, Generated };

struct GenerationResult
{
    GenerationOutcome outcome = GenerationOutcome::Declined;
    int logId = 0;               ///< FGId of the log row, once written
    ReturnFileSummary summary;   ///< what the file holds, once written
    QString error;               ///< the message shown for a failure
};

/**
 * From the request for a return file to the file on disk, for one form: the checks in their
 * order, the panel with the file name and totals, then on the user's word the log row and the
 * file. The statement screens and the batch front end both run it; checks return their failure
 * and the screen shows it.
 */
class GenerationFlow
{
public:
    static inline const QString pleaseCheckTitle = QStringLiteral("Please Check");
    static inline const QString noChallanText = QStringLiteral("No Challan Records found");
    static inline const QString notSavedText =
        QStringLiteral("You need to save the Form before generating the Kelvora file");
    static inline const QString challansNeededText =
        QStringLiteral("You need to enter challan record(s). (if deductee record is there)");
    static inline const QString confirmationTitle = QStringLiteral("Confirmation");
    static inline const QString confirmationText =
        QStringLiteral("Do you want to proceed with the Kelvora file generation?");
    static inline const QString generatedText =
        QStringLiteral("Kelvora file successfully generated");

    /// Whether the user is still to be asked, or has already said yes (the batch's command line).
    enum class Confirmation { Ask, Given };

    GenerationFlow(const DataStore &store, const FormTraits &form);

    /// The text of the declared deductee count that differs from the rows entered.
    static QString deducteeCountText(const QString &declared, int entered);

    /// The refusal of a file prefix that cannot go into a file name.
    static QString filePrefixText(const QString &companyName, const QString &filePrefix);

    /**
     * The return file's path: the first three characters of the prefix, the form, the quarter
     * and ".txt", in eReturns beside the data store, or beside the store itself when eReturns
     * cannot be opened. The folder is not created here, and the prefix is taken as checked
     * (isPlainNamePart).
     */
    static QString fileNameFor(const QString &storeFolder, const QString &filePrefix,
                               const QString &formType, const QString &quarter);

    /**
     * The checks of the Generate button, in their order, with the screen's save between them
     * (no save function: the Statement is taken as saved). A save that returns false stops the
     * flow without a failure of its own, having shown its message. Throws StoreError.
     */
    GenerationPreparation prepare(const GenerationRequest &request,
                                  const std::function<bool()> &save = {}) const;

    /**
     * The generation: the confirmation, the log row, then the file, and the closing box. A
     * failure of the log or the file is shown with its message and ends the flow; a failed file
     * leaves its log row. @p openListRows is the number of rows of the open challan's list.
     */
    GenerationResult generate(const GenerationPanel &panel, int openListRows,
                              MessageBoxes &boxes, const QDateTime &now,
                              Confirmation confirmation = Confirmation::Ask) const;

private:
    void fillPanel(GenerationPanel &panel) const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
