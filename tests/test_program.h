// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

namespace Quillory {

/// A program of tests holds the tests of many sources; its first argument names the one to run, the
/// others are that one's own. Without an argument it lists their names.
class TestProgram
{
public:
    using Run = int (*)(int argc, char** argv);

    /// Makes a test known before main(): its name is that of its source file without folder and
    /// suffix. The strings must live as long as the program.
    TestProgram(const char* sourceFile, Run run);

    static int Main(int argc, char** argv);
};

/// Runs the functions of one test class under a new application of the kind it needs.
template <typename Application, typename Test> int RunTest(int argc, char** argv)
{
    Application application(argc, argv);
    application.setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace Quillory

// Every test is written in these terms.
using namespace Quillory;
using namespace Qt::StringLiterals;

#define QUILLORY_TEST_NAME(number) kTest##number
#define QUILLORY_NUMBERED_TEST(number) QUILLORY_TEST_NAME(number)

/// Stands once in the source of each test: the kind of application, and the class of its functions.
#define QUILLORY_TEST(Application, Test)                                                           \
    static const Quillory::TestProgram QUILLORY_NUMBERED_TEST(__COUNTER__)(                        \
        __FILE__, &Quillory::RunTest<Application, Test>);
