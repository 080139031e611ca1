#include <ORVTListview/SettingsStore.h>

#include "base/ThreadState.h"
#include "shared/settings/SettingsFile.h"
#include "shared/settings/SettingsSession.h"

#include <utility>

namespace ORVTListview {

QString ReadSetting(const QString &ApplicationName, const QString &SettingName)
{
    const auto text = threadPart<SettingsSession>().read({ApplicationName, SettingName});
    return !text || *text == QChar(u' ') ? QString() : *text;
}

void WriteSetting(const QString &ApplicationName, const QString &SettingName, const QString &Value)
{
    threadPart<SettingsSession>().write({ApplicationName, SettingName}, Value);
}

SettingsTransaction::SettingsTransaction()
    : m_session(&threadPart<SettingsSession>())
{
    m_session->begin();
}

SettingsTransaction::~SettingsTransaction()
{
    if (m_session)
        m_session->abandon();
}

void SettingsTransaction::commit()
{
    if (SettingsSession *session = std::exchange(m_session, nullptr))
        session->commit();
}

void setSettingsFile(const QString &fileName)
{
    std::unique_ptr<SettingsPlace> place;
    if (!fileName.isEmpty())
        place = std::make_unique<SettingsFile>(fileName);
    threadPart<SettingsSession>().usePlace(std::move(place));
}

} // namespace ORVTListview
