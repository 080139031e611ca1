#include "widgets/box/DraggedText.h"

namespace ORVTListview {
namespace {

QString lettersOf(const QTextCursor &selection)
{
    QString text = selection.selectedText();
    text.removeIf([](QChar c) { return c.isSpace(); });
    return text;
}

} // namespace

DraggedText::DraggedText(const QTextCursor &selection)
    : m_place(selection)
    , m_text(lettersOf(selection))
{
}

bool DraggedText::isAsItWas() const
{
    return m_place.hasSelection() && lettersOf(m_place).compare(m_text, Qt::CaseInsensitive) == 0;
}

} // namespace ORVTListview
