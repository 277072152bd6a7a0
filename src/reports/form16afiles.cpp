#include "reports/form16afiles.h"

#include "core/namepart.h"
#include "reports/form16aworktables.h"
#include "reports/reportfile.h"

#include <QDir>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <deque>
#include <future>
#include <memory>

namespace {

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
    if (!QDir().mkpath(folder)) {
        outcome.error = QStringLiteral("The folder %1 could not be made.")
                            .arg(QDir::toNativeSeparators(folder));
        return outcome;
    }
    // Drawing a PDF takes far longer than reading and laying out its certificates, so the
    // files are drawn by a few threads that live for the whole run, and told in the order read.
    struct Pending
    {
        Written written;
        std::future<QString> error;
    };
    std::deque<Pending> pending;
    QThreadPool drawers;
    const std::size_t inFlight = std::max(2, QThread::idealThreadCount());
    drawers.setMaxThreadCount(int(inFlight));
    bool going = true;
    const auto finishFirst = [&] {
        Pending first = std::move(pending.front());
        pending.pop_front();
        const QString error = first.error.get();
        if (!going)
            return;
        if (!error.isEmpty()) {
            outcome.error = error;
            going = false;
            return;
        }
        ++outcome.written;
        if (progress && !progress(first.written)) {
            outcome.stopped = true;
            going = false;
        }
    };

    Form16ACertificateReader reader(
        m_tables.certificateRows(companyId, quarter, deducteeIds, groupId));
    for (QList<Form16ACertificate> certificates = reader.nextDeductee();
         going && !certificates.isEmpty(); certificates = reader.nextDeductee()) {
        const Form16ACertificate &first = certificates.first();
        Written written;
        written.name = first.deducteeName;
        written.pan = first.deducteePan;
        written.certificates = int(certificates.size());
        for (const Form16ACertificate &certificate : certificates)
            written.total += certificate.totalTax();
        written.path = QDir(folder).filePath(uniqueName(written.pan, written.name));
        auto report = std::make_shared<const Report>(
            form16adocument::build(certificates, m_heading));
        auto drawn = std::make_shared<std::promise<QString>>();
        pending.push_back({written, drawn->get_future()});
        drawers.start([report, drawn, path = written.path] {
            drawn->set_value(reportfile::save(*report, reportfile::Format::Pdf, path));
        });
        if (pending.size() >= inFlight)
            finishFirst();
    }
    // What was started is finished, even after a stop, so that no file is left half drawn.
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
