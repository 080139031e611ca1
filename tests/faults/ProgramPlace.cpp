#include "faults/ProgramPlace.h"

#include <cstdint>

extern "C" {
// The linker's.
extern const char __executable_start; // NOLINT(bugprone-reserved-identifier)
extern const char etext;
}

bool isInProgram(const void *code)
{
    const auto place = reinterpret_cast<std::uintptr_t>(code);
    return place >= reinterpret_cast<std::uintptr_t>(&__executable_start) &&
           place < reinterpret_cast<std::uintptr_t>(&etext);
}
