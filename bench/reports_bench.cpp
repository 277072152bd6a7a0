// The group-wise deductee list of a group of 20,000 deductees: building the report (reading the
// store, laying out every page) and drawing its first page, as the viewer does before showing
// it; then the whole list saved as a PDF. Runs offscreen, without widgets.

#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "reports/grouplistreports.h"
#include "reports/reportfile.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

constexpr int deducteeCount = 20000;
constexpr int rounds = 7;

void fill(const DataStore &store)
{
    Transaction transaction(store);
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'BENCH')"));
    QSqlQuery insert(store.database());
    insert.prepare(QStringLiteral("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, "
                                  "DeducteeName) VALUES (1, ?, ?, ?)"));
    for (int id = 1; id <= deducteeCount; ++id) {
        // Names in another order than the ids, some long enough to take two lines.
        const int scrambled = (id * 7919) % 100003;
        const QString name = id % 50 == 0
                                 ? QStringLiteral("DEDUCTEE %1 AND SONS PRIVATE LIMITED, "
                                                  "WHOLESALE TRADERS IN GRAIN AND PULSES")
                                       .arg(scrambled)
                                 : QStringLiteral("DEDUCTEE %1").arg(scrambled, 6, 10,
                                                                     QLatin1Char('0'));
        insert.addBindValue(id);
        insert.addBindValue(QStringLiteral("AAAPA%1A").arg(id % 10000, 4, 10, QLatin1Char('0')));
        insert.addBindValue(name);
        if (!insert.exec())
            qFatal("could not fill mstDeductee");
    }
    transaction.commit();
}

/// "best ms, median ms" of a step's rounds.
QString figures(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return QStringLiteral("best %1 ms, median %2 ms")
        .arg(values.front(), 0, 'f', 0)
        .arg(values[values.size() / 2], 0, 'f', 0);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QTextStream out(stdout);

    QTemporaryDir folder;
    const QString path = folder.filePath(DataStore::fileName);
    freshstore::create(path, 2026);
    DataStore store(path);
    storeupgrade::run(store);
    fill(store);

    std::vector<double> builds;
    std::vector<double> firstPages;
    std::vector<double> totals;
    int pages = 0;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        const std::optional<Report> report =
            grouplistreports::deducteeList(store, QDate(2026, 7, 15));
        builds.push_back(timer.nsecsElapsed() / 1e6);

        timer.restart();
        // The first page as the viewer draws it on the screen, at 96 dots an inch.
        const QSizeF paper = report->pageLayout().fullRect(QPageLayout::Point).size();
        QImage page((paper * 96.0 / 72.0).toSize(), QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        painter.scale(96.0 / 72.0, 96.0 / 72.0);
        report->paintPage(painter, 0);
        painter.end();
        firstPages.push_back(timer.nsecsElapsed() / 1e6);
        totals.push_back(builds.back() + firstPages.back());
        pages = report->pageCount();
    }
    out << "Group-wise deductee list of " << deducteeCount << " deductees, " << pages
        << " pages, " << rounds << " rounds\n";
    out << "  build and lay out:  " << figures(builds) << "\n";
    out << "  draw first page:    " << figures(firstPages) << "\n";
    out << "  first page shown:   " << figures(totals) << "\n";

    QElapsedTimer timer;
    timer.start();
    const std::optional<Report> report = grouplistreports::deducteeList(store, QDate(2026, 7, 15));
    const QString pdf = folder.filePath(QStringLiteral("list.pdf"));
    const QString error = reportfile::save(*report, reportfile::Format::Pdf, pdf);
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
    out << "  whole list as PDF:  " << timer.elapsed() << " ms, "
        << QFileInfo(pdf).size() / 1024 << " KiB\n";
    return 0;
}
