#pragma once

#include <QObject>
#include <QTest>

#include <functional>

/// The test objects of one test program, each run in turn by the program's main.
namespace testsuite {

int add(std::function<QObject *()> make);

/// Declares the columns of a data table at once: columns<int, QString>("index", "text").
template<typename... T, typename... Names>
void columns(Names... names)
{
    static_assert(sizeof...(T) == sizeof...(Names));
    (QTest::addColumn<T>(names), ...);
}

} // namespace testsuite

#define KELVORA_TEST_OBJECT(Class) \
    static const int registered##Class = testsuite::add([]() -> QObject * { return new Class; })
