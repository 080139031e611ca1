#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace ORVTListview {

// Cuts a text into many short strings, which share blocks of memory instead of having one
// each: a block holds some thousand units and lives as long as one of its strings. Long ones
// have their own. They are strings as any other to whoever gets them.
class TextCutter
{
public:
    // The text outlives the cutter.
    explicit TextCutter(QStringView text)
        : m_text(text)
    {
    }

    // A part of the text, behind those that were cut before. The unit behind it is what parts
    // it from the next, and never in one: a string ends there with a zero.
    QString cut(qsizetype start, qsizetype length);

private:
    bool holds(qsizetype start, qsizetype length) const;
    void begin(qsizetype start);

    const QStringView m_text;
    QString m_block; // a copy of a part of the text, and a unit more
    QChar *m_units = nullptr;
    qsizetype m_start = 0; // of that part
};

} // namespace ORVTListview
