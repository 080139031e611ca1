#include "widgets/box/BoxSource.h"

#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxMarks.h"

#include <QtCore/QHash>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

class Source
{
public:
    Source(const BoxFormats &formats, RtfSink &sink)
        : m_formats(formats)
        , m_sink(sink)
    {
    }

    void readLine(const QTextBlock &block, int from, int to)
    {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            readFragment(it.fragment(), from, to);
    }

private:
    void readFragment(const QTextFragment &fragment, int from, int to)
    {
        const int start = std::max(fragment.position(), from);
        const int end = std::min(fragment.position() + fragment.length(), to);
        if (start >= end)
            return;
        QString text = fragment.text().mid(start - fragment.position(), end - start);
        const QTextCharFormat format = fragment.charFormat();
        BoxMarks::restore(format, text);
        auto it = m_known.find(fragment.charFormatIndex());
        if (it == m_known.end())
            it = m_known.insert(fragment.charFormatIndex(), m_formats.rtfFormat(format));
        m_sink.text(text, *it);
    }

    const BoxFormats &m_formats;
    RtfSink &m_sink;
    QHash<int, RtfFormat> m_known; // by the document's number of the format
};

} // namespace

void readBox(const QTextDocument &document, const BoxFormats &formats, int from, int to,
             RtfSink &sink)
{
    Source source(formats, sink);
    for (QTextBlock block = document.findBlock(from); block.isValid(); block = block.next()) {
        source.readLine(block, from, to);
        if (block.position() + block.length() > to)
            return;
        sink.lineEnd();
    }
}

} // namespace ORVTListview
