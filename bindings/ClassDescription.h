#pragma once

#include "TypeDescription.h"

#include <ORVTListview/MemberTable.h>

#include <QtCore/QJsonObject>

// One class of the file: its members, and what else is known of them.
class ClassDescription
{
public:
    // `fresh` is an object of the class as it is at first; null for a class of which there
    // is none by itself.
    ClassDescription(QMetaType type, QObject *fresh, TypeDescription &types);

    QJsonObject json();

private:
    QJsonObject described(const ORVTListview::Member &member);
    QJsonArray arguments(const ORVTListview::Member &member);
    void addProperty(const ORVTListview::Member &member, QJsonObject &entry);
    void addFacts(const QString &name, QJsonObject &entry) const;

    QMetaType m_type;
    QObject *m_fresh;
    TypeDescription &m_types;
    const ORVTListview::MemberTable &m_members;
};
