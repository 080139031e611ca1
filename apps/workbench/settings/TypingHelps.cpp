#include "workbench/settings/TypingHelps.h"

#include <ORVTListview/CodeView.h>

namespace ORVTListview {

TypingHelps TypingHelps::of(const CodeView &view)
{
    return {view.autoIndent(), view.smartHome(), view.trimsBlanks(), view.wordListOpensItself()};
}

void TypingHelps::into(CodeView &view) const
{
    view.setAutoIndent(indents);
    view.setSmartHome(hasSmartHome);
    view.setTrimsBlanks(dropsBlanks);
    view.setWordListOpensItself(listsWords);
}

} // namespace ORVTListview
