#include "editor/rules/colouring/RtfHead.h"

#include "shared/texts/TextTable.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

RtfHead BuildRtfHeader(const QString &SampleRtf, const RichTextSettings &Settings,
                       MessageService &messages, const ColourSplitter &splitter)
{
    QString errorText;
    QString colourTable = defaultColourTable();
    try {
        colourTable = BuildColourTable(Settings, errorText, splitter);
    } catch (const std::exception &) {
        errorText.clear(); // the default table stays
    }

    const QStringList lines = SampleRtf.split(u"\r\n"_s);
    const qsizetype mark = lines.size() > 1 ? lines[1].indexOf(u'#') : -1;
    if (mark < 0)
        return {u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"_s +
                    colourTable + u"\r\n\\viewkind4\\uc1\\pard\\lang1033\\b\\fs17 "_s,
                false};
    if (!errorText.isEmpty())
        messages.show({Message::Icon::Exclamation, Localise(u"Code Text Setting"_s), errorText});
    return {lines[0] + u"\r\n"_s + colourTable + u"\r\n"_s + lines[1].first(mark), true};
}

} // namespace ORVTListview
