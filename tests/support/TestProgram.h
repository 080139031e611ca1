#pragma once

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

// The test classes of one program. The first argument of the program says which of
// them is run; what follows it is QtTest's.
class AnnouncedTest
{
public:
    using Run = int (*)(int argc, char **argv);

    AnnouncedTest(const char *name, Run run);

    // What QtTest returns; 2 when no class has the name.
    static int runNamed(const char *name, int argc, char **argv);

private:
    const char *m_name;
    Run m_run;
    const AnnouncedTest *m_next; // a list, for it is made before main() is
};

template <typename Test, typename Application>
int runTest(int argc, char **argv)
{
    Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <typename Test>
int runTestAlone(int argc, char **argv)
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#define ORVT_TEST(Test)                                                                            \
    static const AnnouncedTest announced##Test(#Test, runTest<Test, QApplication>);
#define ORVT_TEST_WITHOUT_WIDGETS(Test)                                                            \
    static const AnnouncedTest announced##Test(#Test, runTest<Test, QCoreApplication>);
#define ORVT_TEST_WITHOUT_APPLICATION(Test)                                                        \
    static const AnnouncedTest announced##Test(#Test, runTestAlone<Test>);
