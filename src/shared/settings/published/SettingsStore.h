#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QString>

namespace ORVTListview {

class SettingsSession;

// A small store of named texts, kept per application name for all users of the
// machine. Where it stands, and its form, is described in docs/guide/settings-file.md.
// Names are told apart by letter case, except in the registry of Windows.
//
// No failure is reported: a setting that cannot be read is absent, one that
// cannot be written stays as it was.

// The stored text; empty for an absent setting and for a text that is one single
// blank. Every other text comes back as it was written.
ORVT_CORE_EXPORT QString ReadSetting(const QString &ApplicationName, const QString &SettingName);

// Writes at once, or with the transaction that is open on this thread.
ORVT_CORE_EXPORT void WriteSetting(const QString &ApplicationName, const QString &SettingName,
                                   const QString &Value);

// Settings that belong together. While one lives, ReadSetting on this thread
// answers for one moment, plus what was written meanwhile; commit saves all that
// was written in one step. Without commit it is as if nothing had been written.
// One that is made while another lives becomes part of it when it is committed.
// To be used on one thread, and strictly nested, as a local variable is.
class ORVT_CORE_EXPORT SettingsTransaction
{
public:
    SettingsTransaction();
    ~SettingsTransaction();
    Q_DISABLE_COPY_MOVE(SettingsTransaction) // one begin, one end

    // Ends the transaction; a second call does nothing.
    void commit();

private:
    SettingsSession *m_session;
};

// Makes this thread keep its settings in that file alone, in place of the usual
// ones: for kiosks, tests and hosts with arrangements of their own. Empty: the
// usual ones again. Settings are not carried over. The environment variable
// ORVT_SETTINGS_FILE does the same from outside; a call goes before it.
ORVT_CORE_EXPORT void setSettingsFile(const QString &fileName);

} // namespace ORVTListview
