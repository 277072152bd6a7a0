#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

class TestManual : public QObject
{
    Q_OBJECT

private slots:
    /// Every link of the manual beside the program leads somewhere: a section of the manual
    /// or a file beside it, each picture a PNG.
    void linksResolve()
    {
        QFile manual(QStringLiteral(KELVORA_MANUAL_PATH));
        QVERIFY2(manual.open(QIODevice::ReadOnly), qPrintable(manual.fileName()));
        const QString html = QString::fromUtf8(manual.readAll());
        const QDir folder = QFileInfo(manual).absoluteDir();

        QSet<QString> ids;
        static const QRegularExpression id(QStringLiteral("\\sid=\"([^\"]+)\""));
        for (const QRegularExpressionMatch &match : id.globalMatch(html))
            ids << match.captured(1);

        static const QRegularExpression link(QStringLiteral("\\s(href|src)=\"([^\"]*)\""));
        QStringList faults;
        int pictures = 0;
        for (const QRegularExpressionMatch &match : link.globalMatch(html)) {
            const QString target = match.captured(2);
            if (target.startsWith(u'#')) {
                if (!ids.contains(target.mid(1)))
                    faults << target;
                continue;
            }
            QFile file(folder.filePath(target));
            if (target.contains(u':') || !file.open(QIODevice::ReadOnly)) {
                faults << target;
                continue;
            }
            if (match.captured(1) == u"src") {
                ++pictures;
                if (!file.read(8).startsWith("\x89PNG"))
                    faults << target + QStringLiteral(" (not a PNG)");
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u' ')));
        QVERIFY(pictures >= 8);
    }
};

KELVORA_TEST_OBJECT(TestManual);
#include "test_manual.moc"
