#include "faults/ProgramPlace.h"

#include <cstdint>

extern "C" {
// The linker's.
extern const char __image_base__; // NOLINT(bugprone-reserved-identifier)
extern const char etext;
}

bool isInProgram(const void *code)
{
    const auto place = reinterpret_cast<std::uintptr_t>(code);
    return place >= reinterpret_cast<std::uintptr_t>(&__image_base__) &&
           place < reinterpret_cast<std::uintptr_t>(&etext);
}
