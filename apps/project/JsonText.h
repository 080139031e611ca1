#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

// A JSON text in which single values are replaced, while everything else stays as
// its author laid it out.
class JsonText
{
public:
    // The text is valid JSON.
    explicit JsonText(const QByteArray &json)
        : m_json(json)
    {
    }

    // Puts a text in place of the text at element of an array of the outermost
    // object, under member. False, and nothing is done, when no text is there.
    bool replace(const QString &array, qsizetype element, const QString &member,
                 const QString &text);

    QByteArray bytes() const { return m_json; }

private:
    void skipBlanks();
    void skipString();
    void skipValue();
    bool take(char character);
    bool enterMember(const QString &name);
    bool enterElement(qsizetype index);
    QString takeString();

    QByteArray m_json;
    qsizetype m_position = 0;
};

} // namespace ORVTListview
