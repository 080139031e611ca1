#pragma once

#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

// A value of a JSON file that knows where it stands, so that whoever reads it
// need not say so again. What has the wrong form raises ProjectNotValid with
// file, place and reason. An absent value reads as the default given.
class JsonPlace
{
public:
    // The root of a file's text.
    static JsonPlace parse(const QByteArray &json, const QString &fileName);

    bool isPresent() const { return !m_value.isUndefined(); }
    const JsonPlace &required() const;

    // A member of an object, absent if the object is absent or has none.
    JsonPlace member(const QString &name) const;

    // A misspelt member would otherwise be lost without a word.
    void allowOnly(const QStringList &members) const;

    // The elements of an array, none if absent; at most the number given.
    QList<JsonPlace> items(qsizetype atMost) const;

    QString text(const QString &absent = {}) const;
    bool boolean(bool absent = false) const;
    qint32 integer(qint32 absent = 0) const;
    double number() const;

    bool isText() const { return m_value.isString(); }
    bool isNumber() const { return m_value.isDouble(); }

    [[noreturn]] void fail(const QString &reason) const;

    // Such as "inputs #3, value".
    QString place() const { return m_place; }

private:
    JsonPlace(QString file, QString place, QJsonValue value);

    QString m_file;
    QString m_place; // empty for the root
    QJsonValue m_value;
};

} // namespace ORVTListview
