#include "shared/settings/RegistryHiveWindows.h"

#include <windows.h>

namespace ORVTListview {
namespace {

using Owner = RegistryHive::Owner;

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

HKEY hiveOf(Owner owner)
{
    return owner == Owner::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

class Key
{
public:
    Key() = default;
    ~Key()
    {
        if (m_key)
            RegCloseKey(m_key);
    }
    Q_DISABLE_COPY_MOVE(Key) // one open, one close

    bool open(Owner owner, const QString &path, REGSAM access)
    {
        return RegOpenKeyExW(hiveOf(owner), wide(path), 0, access, &m_key) == ERROR_SUCCESS;
    }
    bool create(Owner owner, const QString &path)
    {
        return RegCreateKeyExW(hiveOf(owner), wide(path), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                               &m_key, nullptr) == ERROR_SUCCESS;
    }
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

} // namespace

std::optional<QString> RegistryHive::data(const QString &path, const QString &name) const
{
    Key key;
    if (!key.open(m_owner, path, KEY_QUERY_VALUE))
        return std::nullopt;
    QString text(64, Qt::Uninitialized);
    while (true) { // another process may put a longer one there in between
        auto bytes = static_cast<DWORD>(text.size() * qsizetype(sizeof(wchar_t)));
        DWORD type = REG_NONE;
        const LSTATUS status = RegQueryValueExW(key.get(), wide(name), nullptr, &type,
                                                reinterpret_cast<BYTE *>(text.data()), &bytes);
        const auto letters = static_cast<qsizetype>(bytes / sizeof(wchar_t));
        if (status == ERROR_MORE_DATA) {
            text.resize(letters + 1);
            continue;
        }
        if (status != ERROR_SUCCESS || type != REG_SZ)
            return std::nullopt;
        text.truncate(letters);
        return text;
    }
}

bool RegistryHive::setData(const QString &path, const QString &name, const QString &data)
{
    LSTATUS status = ERROR_KEY_DELETED;
    // Removed by another process before the value came: the key is made anew.
    for (int attempt = 0; attempt < 3 && status == ERROR_KEY_DELETED; ++attempt) {
        Key key;
        if (!key.create(m_owner, path))
            return false;
        status = RegSetValueExW(key.get(), wide(name), 0, REG_SZ,
                                reinterpret_cast<const BYTE *>(data.utf16()),
                                static_cast<DWORD>(data.size() * qsizetype(sizeof(wchar_t))));
    }
    return status == ERROR_SUCCESS;
}

bool RegistryHive::remove(const QString &path, const QString &name)
{
    Key key;
    return key.open(m_owner, path, KEY_SET_VALUE) &&
           RegDeleteValueW(key.get(), wide(name)) == ERROR_SUCCESS;
}

} // namespace ORVTListview
