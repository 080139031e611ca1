#include "shared/settings/SystemSettings.h"

#include "shared/settings/OverlaidSettings.h"
#include "shared/settings/RegistrySettings.h"

#include <windows.h>

namespace ORVTListview {
namespace {

LPCWSTR wide(const QString &text)
{
    return reinterpret_cast<LPCWSTR>(text.utf16());
}

class Key
{
public:
    Key(HKEY hive, const QString &path, REGSAM access)
        : m_isOpen(RegCreateKeyExW(hive, wide(path), 0, nullptr, 0, access, nullptr, &m_key,
                                   nullptr) == ERROR_SUCCESS)
    {
    }

    ~Key()
    {
        if (m_isOpen)
            RegCloseKey(m_key);
    }

    Q_DISABLE_COPY_MOVE(Key) // one open, one close

    explicit operator bool() const { return m_isOpen; }
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
    bool m_isOpen;
};

class Hive final : public Registry
{
public:
    explicit Hive(HKEY hive)
        : m_hive(hive)
    {
    }

    std::optional<QString> data(const QString &path, const QString &name) const override
    {
        const Key key(m_hive, path, KEY_QUERY_VALUE);
        DWORD type = REG_NONE;
        DWORD bytes = 0;
        if (!key || RegQueryValueExW(key.get(), wide(name), nullptr, &type, nullptr, &bytes) !=
                        ERROR_SUCCESS)
            return std::nullopt;
        QString data(static_cast<qsizetype>(bytes / sizeof(WCHAR)), Qt::Uninitialized);
        if (type != REG_SZ ||
            RegQueryValueExW(key.get(), wide(name), nullptr, nullptr,
                             reinterpret_cast<LPBYTE>(data.data()), &bytes) != ERROR_SUCCESS)
            return std::nullopt;
        data.truncate(static_cast<qsizetype>(bytes / sizeof(WCHAR)));
        return data;
    }

    bool setData(const QString &path, const QString &name, const QString &data) override
    {
        const Key key(m_hive, path, KEY_SET_VALUE);
        return key &&
               RegSetValueExW(key.get(), wide(name), 0, REG_SZ,
                              reinterpret_cast<const BYTE *>(data.utf16()),
                              static_cast<DWORD>(data.size() * sizeof(WCHAR))) == ERROR_SUCCESS;
    }

    bool remove(const QString &path, const QString &name) override
    {
        const Key key(m_hive, path, KEY_SET_VALUE);
        return key && RegDeleteValueW(key.get(), wide(name)) == ERROR_SUCCESS;
    }

private:
    HKEY m_hive;
};

std::unique_ptr<SettingsPlace> settingsIn(HKEY hive)
{
    return std::make_unique<RegistrySettings>(std::make_shared<Hive>(hive));
}

} // namespace

std::unique_ptr<SettingsPlace> systemSettings()
{
    return std::make_unique<OverlaidSettings>(settingsIn(HKEY_LOCAL_MACHINE),
                                              settingsIn(HKEY_CURRENT_USER));
}

} // namespace ORVTListview
