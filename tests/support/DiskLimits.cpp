#include "support/DiskLimits.h"

#include <QtCore/QFile>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace DiskLimits {
namespace {

[[noreturn]] void stopAsNotPermitted(const char *what)
{
    std::perror(what);
    std::exit(notPermitted);
}

void writeTo(const char *fileName, const QByteArray &content)
{
    QFile file(QFile::decodeName(fileName));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(content) < 0)
        stopAsNotPermitted(fileName);
}

// A view of the file systems of this process's own.
void leaveMounts()
{
    const QByteArray user = QByteArray::number(::geteuid());
    const QByteArray group = QByteArray::number(::getegid());
    if (::geteuid() == 0) {
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            stopAsNotPermitted("unshare");
        return;
    }
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        stopAsNotPermitted("unshare");
    writeTo("/proc/self/setgroups", "deny");
    writeTo("/proc/self/uid_map", "0 " + user + " 1");
    writeTo("/proc/self/gid_map", "0 " + group + " 1");
}

} // namespace

void mount(const QString &folder, qint64 bytes)
{
    leaveMounts();
    const QByteArray options = "size=" + QByteArray::number(bytes);
    if (::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, options.constData()) !=
        0)
        stopAsNotPermitted("mount");
}

void fill(const QString &folder, qint64 room)
{
    QFile file(folder + u"/filling"_s);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        std::exit(1);
    while (file.write(QByteArray(512, 'x')) > 0) {
    }
    file.resize(file.size() - room);
}

void limitFiles(qint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    rlimit largest;
    if (::getrlimit(RLIMIT_FSIZE, &largest) != 0)
        stopAsNotPermitted("getrlimit");
    largest.rlim_cur = static_cast<rlim_t>(bytes);
    if (::setrlimit(RLIMIT_FSIZE, &largest) != 0)
        stopAsNotPermitted("setrlimit");
}

void dropRights()
{
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 &&
        (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0))
        stopAsNotPermitted("dropping rights");
}

struct FileLimit::Former
{
    rlimit limit = {};
    void (*handler)(int) = nullptr;
};

FileLimit::FileLimit(qint64 bytes)
    : m_former(std::make_unique<Former>())
{
    if (::getrlimit(RLIMIT_FSIZE, &m_former->limit) != 0)
        stopAsNotPermitted("getrlimit");
    m_former->handler = std::signal(SIGXFSZ, SIG_IGN);
    limitFiles(bytes);
}

FileLimit::~FileLimit()
{
    ::setrlimit(RLIMIT_FSIZE, &m_former->limit);
    std::signal(SIGXFSZ, m_former->handler);
}

bool makePipe(const QString &fileName)
{
    return ::mkfifo(QFile::encodeName(fileName).constData(), 0600) == 0;
}

} // namespace DiskLimits
