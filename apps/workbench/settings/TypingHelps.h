#pragma once

namespace ORVTListview {

class CodeView;

// What editors do beside what is typed; all of it at first.
struct TypingHelps
{
    bool indents = true;
    bool hasSmartHome = true;
    bool dropsBlanks = true;
    bool listsWords = true;

    static TypingHelps of(const CodeView &view);
    void into(CodeView &view) const;

    friend bool operator==(const TypingHelps &, const TypingHelps &) = default;
};

} // namespace ORVTListview
