#include "editor/CheckedPaste.h"

#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeText.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

void warn(const QString &text)
{
    threadPart<Messages>().service().show({Message::Icon::Exclamation, Localise(u"Paste"_s), text});
}

} // namespace

std::optional<ColouredText> textToPaste(const RichTextBox &box, const QString &data)
{
    if (data.contains(u'\\')) {
        warn(Localise(u"Invalid letter: '\\' that is reserved to RTF!"_s));
        return std::nullopt;
    }
    const bool continuesComment = IsCommentLine(box.lineText(box.GetLineFromChar(box.SelStart())));
    return colouredText(threadColouring(), withCrLf(data), continuesComment,
                        threadPart<EditorState>().EditorSettings);
}

bool acceptPasteSize(const QString &data)
{
    if (data.size() * qsizetype{sizeof(QChar)} <= largestPaste)
        return true;
    warn(Localise(u"The text is too large."_s));
    return false;
}

} // namespace ORVTListview
