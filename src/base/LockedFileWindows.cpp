#include "base/LockedFile.h"

#include "base/SystemPathWindows.h"

#include <QtCore/QThread>

#include <windows.h>

namespace ORVTListview {
namespace {

// Of a file that goes as soon as nobody has it open, the system's own functions tell no
// more than that access is denied; the kernel below tells why.
bool isGoing()
{
    using LastStatus = LONG(WINAPI *)();
    constexpr auto deletePending = static_cast<LONG>(0xC0000056);
    static const auto lastStatus = reinterpret_cast<LastStatus>(reinterpret_cast<void *>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetLastNtStatus")));
    return lastStatus && lastStatus() == deletePending;
}

bool isTransient(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_DELETE_PENDING ||
           error == ERROR_FILE_NOT_FOUND || // gone between the two tries
           (error == ERROR_ACCESS_DENIED && isGoing());
}

// Who opens a file for itself alone keeps all others out, on whatever machine.
HANDLE openAlone(const std::wstring &path)
{
    HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr,
                                OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    // A lock file of somebody else may be open to reading only; that will do.
    if (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_ACCESS_DENIED)
        handle = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
    return handle;
}

} // namespace

struct LockedFile::System
{
    HANDLE handle = INVALID_HANDLE_VALUE;
};

LockedFile::LockedFile(const QString &fileName, const QDeadlineTimer &deadline)
    : m_system(std::make_unique<System>())
{
    const std::wstring path = systemPath(fileName);
    while (true) {
        m_system->handle = openAlone(path);
        if (m_system->handle != INVALID_HANDLE_VALUE) {
            m_state = State::Held;
            return;
        }
        m_state = isTransient(GetLastError()) ? State::HeldElsewhere : State::Impossible;
        if (m_state == State::Impossible || deadline.hasExpired())
            return;
        QThread::msleep(1);
    }
}

LockedFile::~LockedFile()
{
    if (m_system->handle != INVALID_HANDLE_VALUE)
        CloseHandle(m_system->handle);
}

// Nobody moves or removes what is open to one alone.
bool LockedFile::isInPlace() const
{
    return m_system->handle != INVALID_HANDLE_VALUE;
}

// It goes as its handle is closed.
void LockedFile::remove()
{
    FILE_DISPOSITION_INFO info = {};
    info.DeleteFile = TRUE;
    SetFileInformationByHandle(m_system->handle, FileDispositionInfo, &info, sizeof info);
}

} // namespace ORVTListview
