#include "support/DiskLimits.h"

#include <cstdlib>

// The system has no such limits for one process.
namespace DiskLimits {

void mount(const QString &, qint64)
{
    std::exit(notPermitted);
}

void fill(const QString &, qint64)
{
    std::exit(notPermitted);
}

void limitFiles(qint64)
{
    std::exit(notPermitted);
}

// Nobody may write a file that may only be read.
void dropRights() {}

struct FileLimit::Former
{
};

FileLimit::FileLimit(qint64 bytes)
{
    limitFiles(bytes);
}

FileLimit::~FileLimit() = default;

bool makePipe(const QString &)
{
    return false;
}

} // namespace DiskLimits
