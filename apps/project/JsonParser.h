#pragma once

#include "project/JsonTokens.h"
#include "project/JsonTree.h"

#include <QtCore/QByteArray>
#include <QtCore/QSet>
#include <QtCore/QString>

namespace ORVTListview {

// Reads a JSON text (RFC 8259) in UTF-8, with or without a byte order mark, which
// belongs to the places. The toolkit's reader knows no places and takes the last of
// two members of one name; here the second is a fault.
class JsonParser
{
public:
    // The root is whatever kind of value it is. Throws JsonFault.
    static JsonTree parse(const QByteArray &json);

private:
    explicit JsonParser(const QByteArray &json);

    void readValue(qsizetype name);
    void readContent();
    void readObject();
    void readMember(QSet<QString> &names);
    void readArray();
    void readWord();
    void enter();

    JsonTree m_tree;
    JsonTokens m_tokens;
    int m_depth = 0;
};

} // namespace ORVTListview
