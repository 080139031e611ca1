#include "editor/CheckedPaste.h"

#include "base/MessageService.h"
#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/CodeWordList.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

void warn(const EditorThread &thread, const QString &text)
{
    thread.messages.service().show({Message::Icon::Exclamation, Localise(u"Paste"_s), text});
}

} // namespace

std::optional<ColouredText> textToPaste(const EditorThread &thread, const RichTextBox &box,
                                        const QString &data, Pasting how)
{
    if (data.contains(u'\\')) {
        warn(thread, Localise(u"Invalid letter: '\\' that is reserved to RTF!"_s));
        return std::nullopt;
    }
    const bool continuesComment = IsCommentLine(box.lineText(box.GetLineFromChar(box.SelStart())));
    if (how == Pasting::AsItIs)
        return thread.finished(withCrLf(data),
                               continuesComment ? Spelling::AsTyped : Spelling::Listed);
    return colouredText(thread.colouring(), withCrLf(data), continuesComment, thread.settings());
}

bool acceptPasteSize(const EditorThread &thread, const QString &data)
{
    if (data.size() * qsizetype{sizeof(QChar)} <= largestPaste)
        return true;
    warn(thread, Localise(u"The text is too large."_s));
    return false;
}

} // namespace ORVTListview
