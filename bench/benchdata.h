#pragma once

// Generated data and timing for the benchmark programs: stores of an office's size, built row
// by row through prepared statements as fast as SQLite takes them.

#include "core/messageboxes.h"
#include "core/money.h"

#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>
#include <vector>

class DataStore;
class QTemporaryDir;
struct FormTraits;

namespace benchdata {

/// One prepared INSERT, bound by position and run once per row.
class Inserter
{
public:
    Inserter(const DataStore &store, const QString &table, const QStringList &columns);
    void row(const QVariantList &values);

private:
    QSqlQuery m_query;
};

/// Answers every box with Ok, and every question with No; keeps what was said.
class QuietBoxes : public MessageBoxes
{
public:
    Answer show(const Message &message) override
    {
        shown << message.text;
        return Answer::Ok;
    }
    QStringList shown;
};

/// A fresh store of the financial year 2026-27 in the folder, upgraded as a start leaves it.
std::unique_ptr<DataStore> freshStore(const QTemporaryDir &folder);

/// A valid PAN that differs from row to row, its digits never 0000; the fourth letter is the
/// holder's status.
QString pan(int serial, char status);
/// An amount with paise that changes from row to row.
Money amountFor(int serial);

void addCompany(const DataStore &store, int compId, const QString &name, const QString &prefix);
void addStatement(const DataStore &store, const FormTraits &form, int id, int compId,
                  int challans, int rows);

/// The columns of a challan row of Form 24Q; the other forms have Section after SlNo.
extern const QStringList challanColumns;
QVariantList challanValues(int challanId, int statement, int compId, int slNo, Money total);

/// A 26Q Statement of the given number of challans of rowsPerChallan rows each; the rows take
/// their ids from nextRowId.
void build26Q(const DataStore &store, int statement, int compId, int challans,
              int rowsPerChallan, int &nextRowId);

/// The milliseconds a step takes.
double timed(const std::function<void()> &step);
/// The best and the middle of the rounds, in milliseconds.
QString figures(std::vector<double> times);

} // namespace benchdata
