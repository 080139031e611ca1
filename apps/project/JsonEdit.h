#pragma once

#include "project/JsonPlace.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QVariant>

namespace ORVTListview {

// A text, a number or yes and no as JSON writes it.
QByteArray jsonText(const QVariant &value);

// Values put in place of those of a JSON text, and beside them, while everything else
// stays as its author laid it out.
class JsonEdit
{
public:
    // The places of the changes are places of a text that this one is a part of, from a
    // byte on.
    explicit JsonEdit(const QByteArray &json, qsizetype first = 0)
        : m_json(json)
        , m_first(first)
    {
    }

    // Every place once.
    void replace(const JsonPlace &place, const QVariant &value);
    void replaceBytes(qsizetype start, qsizetype end, const QByteArray &bytes);

    // Several at one place come in their order.
    void insert(qsizetype at, const QByteArray &bytes) { replaceBytes(at, at, bytes); }

    QByteArray bytes() const;

private:
    struct Change
    {
        qsizetype start;
        qsizetype end;
        QByteArray bytes;
    };

    QByteArray m_json;
    qsizetype m_first;
    QList<Change> m_changes;
};

} // namespace ORVTListview
