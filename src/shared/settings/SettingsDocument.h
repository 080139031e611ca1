#pragma once

#include "shared/settings/SettingsPlace.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <utility>

namespace ORVTListview {

// A settings file's content. Changes touch the lines they concern; comments,
// order, and lines that are no settings stay as somebody wrote them.
class SettingsDocument
{
public:
    SettingsDocument();

    // None for bytes that are no settings file, or only the beginning of one.
    static std::optional<SettingsDocument> fromBytes(const QByteArray &bytes);
    QByteArray toBytes() const;

    std::optional<QString> value(const SettingKey &key) const;

    // Whether anything is different now.
    bool apply(const SettingChanges &changes);

private:
    struct Section
    {
        QString name;
        QStringList lines; // a null line is a removed one
    };

    struct Place
    {
        qsizetype section;
        qsizetype line;
    };

    // The section's name and the setting's.
    using Name = std::pair<QString, QString>;
    static Name nameOf(const SettingKey &key);

    void append(const QString &text);
    bool set(const Name &name, const QString &value);
    bool remove(const Name &name);
    Section &sectionFor(const QString &name);

    QList<Section> m_sections; // the first is what stands before any section
    QHash<QString, qsizetype> m_sectionPlaces;
    QHash<Name, Place> m_settings; // of equal ones the last
};

} // namespace ORVTListview
