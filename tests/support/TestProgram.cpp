#include "support/TestProgram.h"

#include <cstdio>
#include <cstring>

namespace {
const AnnouncedTest *first = nullptr;
constexpr int noSuchTest = 2;
} // namespace

AnnouncedTest::AnnouncedTest(const char *name, Run run)
    : m_name(name)
    , m_run(run)
    , m_next(first)
{
    first = this;
}

int AnnouncedTest::runNamed(const char *name, int argc, char **argv)
{
    for (const AnnouncedTest *test = first; test; test = test->m_next) {
        if (std::strcmp(test->m_name, name) == 0)
            return test->m_run(argc, argv);
    }
    std::fputs("Name one of these tests first:\n", stderr);
    for (const AnnouncedTest *test = first; test; test = test->m_next)
        std::fprintf(stderr, "    %s\n", test->m_name);
    return noSuchTest;
}

int main(int argc, char **argv)
{
    const char *name = argc > 1 ? argv[1] : "";
    if (argc < 2)
        return AnnouncedTest::runNamed(name, argc, argv);
    // The program's name goes where the test's was.
    argv[1] = argv[0];
    return AnnouncedTest::runNamed(name, argc - 1, argv + 1);
}
