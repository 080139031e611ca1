#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// The values of a JSON text in the order in which they begin there. What they are is
// read from the text when somebody asks: small values are many.
struct JsonTree
{
    struct Value
    {
        quint32 name;  // the first byte of a member's name, 0 for what is no member
        quint32 start; // its bytes
        quint32 end;
        quint32 behind; // the value that follows it and all within it
    };

    QByteArray json;
    QList<Value> values; // the first is the root
};

// A value of a tree that outlives it, or none.
class JsonNode
{
public:
    enum class Kind { Null, Boolean, Number, Text, Array, Object };

    JsonNode() = default; // none
    static JsonNode rootOf(const JsonTree &tree) { return {&tree, 0, tree.values.size()}; }

    bool isThere() const { return m_tree; }

    Kind kind() const;
    qsizetype start() const { return value().start; }
    qsizetype end() const { return value().end; }

    // Of a value of that kind.
    bool boolean() const;
    double number() const;
    QString text() const;

    // The first element of an array, the value of an object's first member.
    JsonNode first() const;

    // Behind it in the same array or object.
    JsonNode next() const;

    // Of an object.
    JsonNode member(const QString &name) const;

    // Of a member.
    QString name() const;

private:
    JsonNode(const JsonTree *tree, qsizetype index, qsizetype last)
        : m_tree(tree)
        , m_index(index)
        , m_last(last)
    {
    }

    const JsonTree::Value &value() const { return m_tree->values.at(m_index); }
    JsonNode sibling(qsizetype index, qsizetype last) const;
    QByteArrayView bytes() const;
    QByteArrayView writtenName() const;

    const JsonTree *m_tree = nullptr;
    qsizetype m_index = 0;
    qsizetype m_last = 0; // behind the values that it is one of
};

} // namespace ORVTListview
