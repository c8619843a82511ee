// SPDX-License-Identifier: MIT
#include "tests/test_program.h"

#include <cstdio>
#include <map>
#include <string>
#include <string_view>

namespace Quillory {

namespace {

using Tests = std::map<std::string, TestProgram::Run, std::less<>>;

/// Made at its first use, which comes before main().
Tests& KnownTests()
{
    static Tests tests;
    return tests;
}

} // namespace

TestProgram::TestProgram(const char* sourceFile, Run run)
{
    const std::string_view path(sourceFile);
    const size_t begin = path.rfind('/') + 1;
    KnownTests().emplace(path.substr(begin, path.rfind('.') - begin), run);
}

int TestProgram::Main(int argc, char** argv)
{
    if (argc == 1) {
        for (const auto& [name, run] : KnownTests())
            std::puts(name.c_str());
        return 0;
    }
    const auto test = KnownTests().find(std::string_view(argv[1]));
    if (test == KnownTests().end()) {
        std::fprintf(stderr, "There is no test %s.\n", argv[1]);
        return 2;
    }
    // The test finds the program's name before its own arguments.
    argv[1] = argv[0];
    return test->second(argc - 1, argv + 1);
}

} // namespace Quillory

// A test may end by an exception. NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char** argv)
{
    return Quillory::TestProgram::Main(argc, argv);
}
