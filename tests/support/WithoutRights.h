#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

#include <sys/stat.h>
#include <unistd.h>

// As long as it lives, root has no more rights than anybody, for whom the folder is
// open. Others are what they are. The real user counts, too: access() asks for it.
class WithoutRights
{
public:
    explicit WithoutRights(const QString &folder)
    {
        constexpr uid_t nobody = 65534;
        constexpr mode_t open = 0777;
        if (m_isRoot && (::chmod(QFile::encodeName(folder).constData(), open) != 0 ||
                         ::setresuid(nobody, nobody, 0) != 0))
            qFatal("The rights cannot be dropped");
    }

    ~WithoutRights()
    {
        if (m_isRoot && ::setresuid(0, 0, 0) != 0)
            qFatal("The rights do not come back");
    }

    Q_DISABLE_COPY_MOVE(WithoutRights)

private:
    bool m_isRoot = ::geteuid() == 0;
};
