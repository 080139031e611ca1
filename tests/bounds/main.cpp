// bounds_probe work SIZE: carries out each operation on an input of SIZE units and on
// one of twice as many, under callgrind, which writes a part of its file for each.
// bounds_probe memory SIZE NAME: carries out one, and prints the most kilobytes that the
// process ever had and the bytes of the input.
// bounds_probe names: prints the names.

#include "bounds/Operations.h"

#include <valgrind/callgrind.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace {

void work(const Operation &operation, int size)
{
    const Operation::Prepared prepared = operation.prepare(size);
    const std::string name = operation.name + '=' + std::to_string(size);
    prepared(); // what is made once for all
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    prepared();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
}

std::string peak()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    status >> word;
    return word;
}

int usage()
{
    std::cerr << "usage: bounds_probe names | work SIZE | memory SIZE NAME\n";
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string task = argc > 1 ? argv[1] : "";
    const int size = argc > 2 ? std::atoi(argv[2]) : 0;
    if (task == "names") {
        for (const Operation &operation : operations())
            std::cout << operation.name << '\n';
        return 0;
    }
    if (task == "work" && size > 0) {
        for (const Operation &operation : operations()) {
            work(operation, size);
            work(operation, 2 * size);
        }
        return 0;
    }
    if (task != "memory" || argc != 4)
        return usage();
    for (const Operation &operation : operations()) {
        if (operation.name != argv[3])
            continue;
        operation.prepare(size)();
        std::cout << peak() << ' ' << operation.bytesOfAUnit * static_cast<long>(size) << '\n';
        return 0;
    }
    return usage();
}
