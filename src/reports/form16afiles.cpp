#include "reports/form16afiles.h"

#include "core/namepart.h"
#include "core/wholefile.h"
#include "reports/form16aworktables.h"
#include "reports/pdfbatch.h"
#include "reports/reportfile.h"

#include <QDir>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <deque>
#include <future>
#include <memory>

namespace {

/// Deductees drawn into one PDF before it is cut: enough to share the fonts' cost, few enough
/// to keep the memory small and the progress steady.
constexpr qsizetype runLength = 25;

/// The letters and digits of a text, every run of other characters one underscore.
QString plainPart(const QString &text)
{
    QString part;
    for (const QChar ch : text) {
        if (isPlainNamePart(QString(ch)))
            part += ch;
        else if (!part.isEmpty() && !part.endsWith(QLatin1Char('_')))
            part += QLatin1Char('_');
    }
    while (part.endsWith(QLatin1Char('_')))
        part.chop(1);
    return part.left(80);
}

} // namespace

Form16AFiles::Form16AFiles(const Form16AWorkTables &tables, const Form16AHeading &heading)
    : m_tables(tables), m_heading(heading)
{
}

Form16AFiles::Outcome Form16AFiles::write(const QString &folder, int companyId,
                                          const QString &quarter, const QList<int> &deducteeIds,
                                          int groupId, const Progress &progress)
{
    Outcome outcome;
    // Putting the fonts into a PDF costs far more than drawing the pages, so the certificates
    // are drawn a run of deductees at a time into one PDF that is then cut per deductee, by a
    // few threads that live for the whole run. The files are written and told in the order
    // read, here, so that nothing is written after a stop.
    struct Drawn
    {
        std::optional<QList<QByteArray>> files;
        QString error;
    };
    struct Run
    {
        QList<Written> written;
        std::future<Drawn> drawn;
    };
    std::deque<Run> pending;
    QThreadPool drawers;
    const std::size_t inFlight = std::max(2, QThread::idealThreadCount());
    drawers.setMaxThreadCount(int(inFlight));
    bool going = true;
    const auto finishFirst = [&] {
        Run first = std::move(pending.front());
        pending.pop_front();
        const Drawn drawn = first.drawn.get();
        if (!going)
            return;
        if (!drawn.files) {
            outcome.error = drawn.error;
            going = false;
            return;
        }
        // The folder is made for the first file, so that a run with nothing to certify
        // leaves none behind.
        const QString notMade = outcome.written == 0 ? wholefile::makeFolder(folder) : QString();
        if (!notMade.isEmpty()) {
            outcome.error = QStringLiteral("The folder %1 could not be made: %2.")
                                .arg(QDir::toNativeSeparators(folder), notMade);
            going = false;
            return;
        }
        for (qsizetype file = 0; going && file < first.written.size(); ++file) {
            const Written &written = first.written[file];
            outcome.error = reportfile::writeWhole(written.path, drawn.files->at(file));
            if (!outcome.error.isEmpty()) {
                going = false;
                continue;
            }
            ++outcome.written;
            if (progress && !progress(written)) {
                outcome.stopped = true;
                going = false;
            }
        }
    };

    QList<Written> written;
    QList<std::shared_ptr<const Report>> reports;
    const auto draw = [&] {
        if (reports.isEmpty())
            return;
        auto drawn = std::make_shared<std::promise<Drawn>>();
        pending.push_back({written, drawn->get_future()});
        drawers.start([reports, drawn] {
            Drawn result;
            result.files = pdfbatch::separatePdfs(reports, &result.error);
            drawn->set_value(result);
        });
        written.clear();
        reports.clear();
        if (pending.size() >= inFlight)
            finishFirst();
    };
    Form16ACertificateReader reader(m_tables.masterRows(companyId, quarter, deducteeIds, groupId),
                                    Form16ACertificateReader::Deductee::ByMaster);
    for (QList<Form16ACertificate> certificates = reader.nextDeductee();
         going && !certificates.isEmpty(); certificates = reader.nextDeductee()) {
        const Form16ACertificate &first = certificates.first();
        Written file;
        file.name = first.deducteeName;
        file.pan = first.deducteePan;
        file.certificates = int(certificates.size());
        for (const Form16ACertificate &certificate : certificates)
            file.total += certificate.totalTax();
        file.path = QDir(folder).filePath(uniqueName(file.pan, file.name));
        written.append(file);
        reports.append(std::make_shared<const Report>(
            form16adocument::build(certificates, m_heading)));
        if (reports.size() == runLength)
            draw();
    }
    if (going)
        draw();
    while (!pending.empty())
        finishFirst();
    return outcome;
}

QString Form16AFiles::fileName(const QString &pan, const QString &name)
{
    QStringList parts;
    for (const QString &part : {plainPart(pan), plainPart(name)}) {
        if (!part.isEmpty())
            parts << part;
    }
    if (parts.isEmpty())
        parts << QStringLiteral("Form16A");
    return parts.join(QLatin1Char('_')) + QStringLiteral(".pdf");
}

QString Form16AFiles::uniqueName(const QString &pan, const QString &name)
{
    const QString plain = fileName(pan, name);
    QString unique = plain;
    for (int copy = 2; m_used.contains(unique.toLower()); ++copy)
        unique = plain.chopped(4) + QStringLiteral("_%1.pdf").arg(copy);
    m_used.insert(unique.toLower());
    return unique;
}
