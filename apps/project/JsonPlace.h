#pragma once

#include "project/JsonTree.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace ORVTListview {

// A value of a JSON file that knows where it stands, so that whoever reads it
// need not say so again. What has the wrong form raises ProjectNotValid with
// file, place and reason. An absent value reads as the default given.
class JsonPlace
{
public:
    // The root of a file's text.
    static JsonPlace parse(const QByteArray &json, const QString &fileName);

    bool isPresent() const { return m_node.isThere(); }
    const JsonPlace &required() const;

    // A member of an object, absent if the object is absent or has none.
    JsonPlace member(const QString &name) const;

    // A misspelt member would otherwise be lost without a word.
    void allowOnly(const QStringList &members) const;

    // An element of an array, absent if the array is absent or has none.
    JsonPlace item(qsizetype index) const;

    // All elements of an array, none if absent; at most the number given.
    QList<JsonPlace> items(qsizetype atMost) const;

    QString text(const QString &absent = {}) const;
    bool boolean(bool absent = false) const;
    qint32 integer(qint32 absent = 0) const;
    double number() const;

    bool isText() const { return isA(JsonNode::Kind::Text); }
    bool isNumber() const { return isA(JsonNode::Kind::Number); }

    // The bytes of a value that is present.
    qsizetype start() const { return m_node.start(); }
    qsizetype end() const { return m_node.end(); }

    [[noreturn]] void fail(const QString &reason) const;

    // Such as "inputs #3, value".
    QString place() const { return m_place; }

private:
    using Root = std::shared_ptr<const JsonTree>;

    JsonPlace(QString file, Root root, QString place, JsonNode node);

    bool isA(JsonNode::Kind kind) const { return isPresent() && m_node.kind() == kind; }
    JsonPlace below(const QString &place, JsonNode node) const;
    JsonPlace element(qsizetype index, JsonNode node) const;
    JsonNode firstInside() const;
    void expect(JsonNode::Kind kind) const;

    QString m_file;
    Root m_root;
    QString m_place; // empty for the root
    JsonNode m_node; // none for a value that is absent
};

} // namespace ORVTListview
