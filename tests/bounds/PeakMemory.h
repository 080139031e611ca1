#pragma once

#include <fstream>
#include <string>

// By how many kilobytes the process has grown at most since this was made.
class PeakMemory
{
public:
    PeakMemory()
        : m_before(from("VmRSS:"))
    {
        std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
    }
    long grown() const { return from("VmHWM:") - m_before; }

private:
    static long from(const std::string &wanted)
    {
        std::ifstream status("/proc/self/status");
        std::string word;
        while (status >> word && word != wanted) {
        }
        long kilobytes = 0;
        status >> kilobytes;
        return kilobytes;
    }

    long m_before;
};
