#pragma once

#include <ORVTListview/LibraryTexts.h>
#include <ORVTListview/TextProvider.h>

// A language for tests: every text of the library in white square brackets. What
// is shown without them was not looked up or is not in the list of texts.
class PseudoTexts final : public ORVTListview::TextProvider
{
public:
    QDateTime ChangeTime() override { return {}; }

    ORVTListview::TextCollection GetTexts(const QString &) override
    {
        ORVTListview::TextCollection texts;
        for (const ORVTListview::LibraryText &text : ORVTListview::libraryTexts()) {
            const QString english = QString::fromLatin1(text.english);
            texts.insert(ORVTListview::textKey(english), inBrackets(english));
        }
        return texts;
    }

    static QString inBrackets(const QString &text) { return u'\u27e6' + text + u'\u27e7'; }
};
