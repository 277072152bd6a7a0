#include "reports/reportworkbook.h"

#include "reports/report.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <xlsxwriter.h>

namespace {

constexpr int maxSheetName = 31;
constexpr uint8_t a4Paper = 9;
constexpr double narrowest = 8;
constexpr double widest = 60;
constexpr double lineHeight = 15; // points, the default row's

/// Sheet names may not hold []:*?/\ and are at most 31 characters long.
QByteArray sheetName(const QString &caption)
{
    static const QRegularExpression forbidden(QStringLiteral("[\\[\\]:*?/\\\\]"));
    QString name = caption;
    name.replace(forbidden, QStringLiteral(" "));
    name = name.trimmed().left(maxSheetName);
    return (name.isEmpty() ? QStringLiteral("Report") : name).toUtf8();
}

class Workbook
{
public:
    explicit Workbook(const QString &path)
        : m_book(workbook_new(QFile::encodeName(path).constData()))
    {
    }
    ~Workbook()
    {
        if (m_book)
            workbook_close(m_book); // only after a failure: close() has released it otherwise
    }
    Workbook(const Workbook &) = delete;
    Workbook &operator=(const Workbook &) = delete;

    lxw_workbook *get() const { return m_book; }
    lxw_error close()
    {
        const lxw_error result = workbook_close(m_book);
        m_book = nullptr;
        return result;
    }

private:
    lxw_workbook *m_book;
};

} // namespace

bool writeReportWorkbook(const Report &report, const QString &path, QString *reason)
{
    Workbook book(path);
    if (!book.get()) {
        *reason = QStringLiteral("The workbook could not be started.");
        return false;
    }
    lxw_worksheet *sheet = workbook_add_worksheet(book.get(), sheetName(report.caption()));
    // Printed on A4, as wide as one page, as the report itself.
    worksheet_set_paper(sheet, a4Paper);
    worksheet_fit_to_pages(sheet, 1, 0);
    const auto format = [&book](bool strong, bool multiLine) {
        lxw_format *result = workbook_add_format(book.get());
        if (strong)
            format_set_bold(result);
        if (multiLine)
            format_set_text_wrap(result);
        format_set_align(result, LXW_ALIGN_VERTICAL_TOP);
        return result;
    };
    lxw_format *const formats[2][2] = {{format(false, false), format(false, true)},
                                       {format(true, false), format(true, true)}};
    QHash<QString, lxw_format *> numberFormats;
    QList<double> widths;

    lxw_error error = LXW_NO_ERROR;
    lxw_row_t row = 0;
    for (const ReportBand &band : report.bands()) {
        if (row > 0 && (band.spaceAbove > 0 || band.pageBreakBefore))
            ++row;
        const bool strong = band.font != ReportFont::Normal && band.font != ReportFont::Small;
        qsizetype lines = 1;
        for (qsizetype index = 0; index < band.cells.size() && error == LXW_NO_ERROR; ++index) {
            const ReportCell &cell = band.cells[index];
            const auto column = lxw_col_t(index);
            if (cell.number) {
                lxw_format *&format = numberFormats[cell.numberFormat];
                if (!format) {
                    format = workbook_add_format(book.get());
                    format_set_num_format(format, cell.numberFormat.toUtf8().constData());
                }
                error = worksheet_write_number(sheet, row, column, *cell.number, format);
            } else if (!cell.text.isEmpty()) {
                const QByteArray text = cell.text.toUtf8();
                const bool multiLine = cell.text.contains(QLatin1Char('\n'));
                error = worksheet_write_string(sheet, row, column, text.constData(),
                                               formats[strong][multiLine]);
            }
            const QStringList textLines = cell.text.split(QLatin1Char('\n'));
            lines = std::max(lines, textLines.size());
            if (widths.size() <= index)
                widths.resize(index + 1, narrowest);
            // A text across the page (a title) runs over the empty cells beside it.
            if (band.cells.size() == 1)
                continue;
            for (const QString &line : textLines)
                widths[index] = std::min(widest, std::max(widths[index], line.size() + 2.0));
        }
        if (lines > 1 && error == LXW_NO_ERROR)
            error = worksheet_set_row(sheet, row, lineHeight * double(lines), nullptr);
        if (error != LXW_NO_ERROR)
            break;
        ++row;
    }
    for (qsizetype column = 0; column < widths.size() && error == LXW_NO_ERROR; ++column)
        error = worksheet_set_column(sheet, lxw_col_t(column), lxw_col_t(column), widths[column],
                                     nullptr);
    const lxw_error closing = book.close();
    if (error == LXW_NO_ERROR)
        error = closing;
    if (error != LXW_NO_ERROR) {
        *reason = QString::fromUtf8(lxw_strerror(error));
        return false;
    }
    return true;
}
