// Searching a program agrees with looking at each character in turn.

#include "fuzz/FuzzBytes.h"

#include "find/SimpleSearch.h"
#include "find/rules/ProgramSearch.h"

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const TextSearch how{bytes.coin(), bytes.coin()};
    const int start = bytes.below(64);
    QString wanted = bytes.text();
    const QString text = bytes.restText();
    if (wanted.size() > 8) // else it is hardly ever found
        wanted = text.mid(wanted.size() % 32, 1 + wanted.size() % 3);
    const SimpleSearch simple(text, wanted, how);
    demand(findInProgram(text, wanted, start, how) == simple.from(start), "the first place");
    demand(placesToReplace(text, wanted, how) == simple.all(), "the places to replace");

    qsizetype behind = 0;
    for (const qsizetype place : placesOfWord(text, wanted)) {
        demand(place >= behind && place + wanted.size() <= text.size(), "words do not overlap");
        demand(sameText(text.mid(place, wanted.size()), wanted, false), "it is the word");
        behind = place + wanted.size();
    }
    return 0;
}
