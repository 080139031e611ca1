#include "editor/CheckedPaste.h"

#include "editor/CodeText.h"
#include "editor/ColourText.h"
#include "editor/EditorState.h"
#include "editor/ThreadColouring.h"
#include "platform/RichTextBox.h"
#include "platform/TextRules.h"
#include "shared/TextTable.h"
#include "shared/ThreadState.h"

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
