#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonValue>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>

// The types that members name, as a file tells of them: spelt as in C++, without the
// namespace. Records and enumerations are collected while they are named.
class TypeDescription
{
public:
    // Empty for no type.
    QString name(QMetaType type);

    // Each record with its fields, each enumeration with its values, by name.
    QJsonArray records() const;
    QJsonArray enumerations() const;

    // A default as a plain value: enumerations are numbers; null for an empty value and
    // for what no text can tell, such as a picture.
    static QJsonValue value(const QVariant &value);

private:
    void collect(QMetaType type);
    QJsonArray fields(QMetaType record);

    QMap<QString, QJsonArray> m_records;
    QMap<QString, QJsonArray> m_enumerations;
};
