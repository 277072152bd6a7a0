#include "support/testsuite.h"

#include <QTest>

#ifdef KELVORA_TEST_SCREENS
#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

#include <memory>

namespace {

QList<std::function<QObject *()>> &registered()
{
    static QList<std::function<QObject *()>> makers;
    return makers;
}

} // namespace

int testsuite::add(std::function<QObject *()> make)
{
    registered().append(std::move(make));
    return int(registered().size());
}

int main(int argc, char **argv)
{
    Application application(argc, argv);
    int failures = 0;
    for (const auto &make : std::as_const(registered())) {
        const std::unique_ptr<QObject> test(make());
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures;
}
