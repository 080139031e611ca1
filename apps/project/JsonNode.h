#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace ORVTListview {

// A value of a JSON text and where it stands there.
struct JsonNode
{
    enum class Kind { Null, Boolean, Number, Text, Array, Object };

    Kind kind = Kind::Null;
    qsizetype start = 0; // its bytes in the text
    qsizetype end = 0;
    bool boolean = false;
    double number = 0;
    QString text;
    QStringList names;           // of an object's members
    std::vector<JsonNode> items; // an array's elements, the values of an object's members
};

} // namespace ORVTListview
