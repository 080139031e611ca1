#include "shared/settings/SettingsSession.h"

#include "shared/settings/SettingsFile.h"
#include "shared/settings/SettingsLocations.h"
#include "shared/settings/SystemSettings.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

std::unique_ptr<SettingsPlace> usualPlace()
{
    const QString named = namedSettingsFile();
    if (named.isEmpty())
        return systemSettings();
    return std::make_unique<SettingsFile>(named);
}

} // namespace

SettingsSession::SettingsSession()
    : m_place(usualPlace())
{
}

SettingsSession::~SettingsSession() = default;

void SettingsSession::usePlace(std::unique_ptr<SettingsPlace> place)
{
    m_place = place ? std::move(place) : usualPlace();
    m_view.reset();
}

std::optional<QString> SettingsSession::read(const SettingKey &key)
{
    const auto isOfKey = [&key](const SettingChange &change) { return change.key == key; };
    for (auto changes = m_open.crbegin(); changes != m_open.crend(); ++changes) {
        const auto found = std::find_if(changes->crbegin(), changes->crend(), isOfKey);
        if (found != changes->crend())
            return found->value;
    }
    if (m_open.isEmpty())
        return m_place->view()->value(key);
    if (!m_view)
        m_view = m_place->view();
    return m_view->value(key);
}

void SettingsSession::write(const SettingKey &key, const QString &value)
{
    save({{key, value}});
}

void SettingsSession::begin()
{
    m_open.append(SettingChanges());
}

void SettingsSession::commit()
{
    save(end());
}

void SettingsSession::abandon()
{
    end();
}

void SettingsSession::save(const SettingChanges &changes)
{
    if (m_open.isEmpty())
        m_place->write(changes);
    else
        m_open.last().append(changes);
}

SettingChanges SettingsSession::end()
{
    if (m_open.size() == 1)
        m_view.reset();
    return m_open.takeLast();
}

} // namespace ORVTListview
