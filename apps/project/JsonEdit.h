#pragma once

#include "project/JsonPlace.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// Texts put in place of values of a JSON text, while everything else stays as its
// author laid it out.
class JsonEdit
{
public:
    // The places of the changes are places of that text.
    explicit JsonEdit(const QByteArray &json)
        : m_json(json)
    {
    }

    // Every place once.
    void replace(const JsonPlace &place, const QString &text);

    QByteArray bytes() const;

private:
    struct Change
    {
        qsizetype start;
        qsizetype end;
        QByteArray value;
    };

    QByteArray m_json;
    QList<Change> m_changes;
};

} // namespace ORVTListview
