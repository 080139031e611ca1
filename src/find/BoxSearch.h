#pragma once

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>

namespace ORVTListview {

struct TextSearch;

// A search through a box: where it goes on and how it compares. It changes the text
// through the box's commands only, so that the rules of the box's owner hold. Once
// the box is destroyed, or without one, nothing is found and nothing replaced.
// Why it is so: docs/decisions/find.md.
class BoxSearch
{
public:
    // Begins one character behind the selection's start, with neither whole words
    // nor letter case asked for.
    void begin(RichTextBox &box);
    void end() { m_box = nullptr; }

    // None from the moment on at which its destruction leaves it a mere widget.
    RichTextBox *box() const { return qobject_cast<RichTextBox *>(m_box.data()); }

    void setOption(RichTextBox::FindOption option, bool on) { m_options.setFlag(option, on); }

    TextSearch how() const;

    // Selects the next match and returns true; else takes the selection away, and the
    // next search begins at the front. An empty text changes nothing.
    bool findNext(const QString &wanted);

    // Replaces the selection if it is the text wanted, whatever its letter case.
    void replace(const QString &wanted, const QString &text);

    // Replaces all matches and returns how many there were. The search for the next
    // one begins one character behind what was put in.
    qsizetype replaceAll(const QString &wanted, const QString &text);

private:
    QPointer<QObject> m_box;
    qint32 m_start = 0; // of the next search
    QFlags<RichTextBox::FindOption> m_options;
};

} // namespace ORVTListview
