#pragma once

#include "core/money.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class MessageBoxes;
class SectionRecords;
struct FormTraits;

/// The four pop-up grids of the salary statement, in the order of their tables' emptying.
enum class SectionKind { Section10, Section16, ChapterVIA, Section88 };

/// One row of a grid: the section's name and its amounts as shown ("0.00"), empty where none
/// was entered. A grid of one amount uses the first; the others hold gross, qualifying and
/// deduction.
struct SectionRow
{
    QString section;
    std::array<QString, 3> amounts;

    bool hasAmount() const;
};

/**
 * One pop-up grid of sections: every section of the master with the employee's amounts, and a
 * blank row at the foot for a section of another list. A section typed into a row must be in
 * the master and not yet in the grid; amounts take digits and a point only. The OK buttons
 * read the grid's total and, for the grids of gross, qualifying and deduction, refuse a row
 * whose figures do not go down from left to right.
 */
class SectionGrid : public QAbstractTableModel
{
    Q_OBJECT

public:
    static inline const QString invalidSectionText =
        QStringLiteral("Please Enter Or Select a valid section");
    static inline const QString duplicateSectionText =
        QStringLiteral("Duplicate Section Not possible");
    static inline const QString numericOnlyText = QStringLiteral("Enter only numeric data");
    static inline const QString qualifyingText =
        QStringLiteral("Qualifying amount cannot greater then Gross Amout");
    static inline const QString deductionText =
        QStringLiteral("Ded Amount cannot amount cannot greater then Qualifying amount or "
                       "Gross Amount");

    /// What sets the grids apart: their place in the store and the controls that show them.
    struct Traits
    {
        SectionKind kind;
        QString FormTraits::*table;
        const char *sectionType;  ///< SectionType of the master's rows shown
        const char *excluded;     ///< a section of that type left out, or nullptr
        /// What the list of sections offers when it is not the master's rows of the type.
        std::array<const char *, 2> offered;
        std::array<const char *, 4> heads;
        const char *frame;        ///< objectName of the pop-up frame
        const char *title;
        const char *grid;         ///< objectName of the grid
        const char *button;       ///< the button beside the total that opens the frame
        const char *okButton;
        const char *cancelButton;
        int totalBox;             ///< txt(index) that OK fills
        int amountColumns;        ///< 1, or 3 for gross, qualifying and deduction
    };

    static const Traits &traits(SectionKind kind);
    static constexpr std::array<SectionKind, 4> kinds = {
        SectionKind::Section10, SectionKind::Section16, SectionKind::ChapterVIA,
        SectionKind::Section88};

    /// Whether a key may be typed into an amount: digits and the point. Keys that type nothing
    /// are not the grid's business.
    static bool isNumericKey(QChar key);

    SectionGrid(SectionKind kind, const SectionRecords &records, MessageBoxes &boxes,
                QObject *parent = nullptr);

    const Traits &traits() const { return traits(m_kind); }

    /// The rows loaded for an employee; the blank row is added behind them.
    void setRows(QList<SectionRow> rows);
    /// The rows that are written: those with a section and an amount.
    QList<SectionRow> enteredRows() const;

    /// The sum of the last amount column (the deductions), blanks as 0.
    Money total() const;
    /// The deduction of the row of a section (named without regard to case); 0 for none.
    Money deductionOf(const QString &section) const;
    /// The refusal of the first row whose qualifying amount exceeds its gross, or whose
    /// deduction exceeds either; none for a grid of one amount.
    std::optional<QString> amountRefusal() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value,
                 int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    bool setSection(int row, const QString &section);
    bool refuse(const QString &text) const;

    SectionKind m_kind;
    const SectionRecords &m_records;
    MessageBoxes &m_boxes;
    QList<SectionRow> m_rows; ///< always ends in a blank row
};
