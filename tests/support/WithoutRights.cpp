#include "support/WithoutRights.h"

#include <QtCore/QFile>

#include <sys/stat.h>
#include <unistd.h>

WithoutRights::WithoutRights(const QString &folder)
    : m_isRoot(::geteuid() == 0)
{
    constexpr uid_t nobody = 65534;
    constexpr mode_t open = 0777;
    if (m_isRoot && (::chmod(QFile::encodeName(folder).constData(), open) != 0 ||
                     ::setresuid(nobody, nobody, 0) != 0))
        qFatal("The rights cannot be dropped");
}

WithoutRights::~WithoutRights()
{
    if (m_isRoot && ::setresuid(0, 0, 0) != 0)
        qFatal("The rights do not come back");
}
