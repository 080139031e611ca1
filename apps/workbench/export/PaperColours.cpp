#include "workbench/export/PaperColours.h"

#include <QtCore/QRegularExpression>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr auto classes = {&RichTextSettings::VariableColor,     &RichTextSettings::ConstantColor,
                          &RichTextSettings::InputColor,        &RichTextSettings::OutputColor,
                          &RichTextSettings::ReservedWordColor, &RichTextSettings::CommentColor,
                          &RichTextSettings::nviFPAColor,       &RichTextSettings::nvoFPAColor};

// Colours are as Colour.h says.
qint32 colourOf(const QRegularExpressionMatch &entry)
{
    return entry.captured(1).toInt() | entry.captured(2).toInt() << 8 |
           entry.captured(3).toInt() << 16;
}

QString entryOf(qint32 colour)
{
    return u"\\red%1\\green%2\\blue%3"_s.arg(QString::number(colour & 0xFF),
                                             QString::number(colour >> 8 & 0xFF),
                                             QString::number(colour >> 16 & 0xFF));
}

} // namespace

PaperColours::PaperColours(const RichTextSettings &paper, const RichTextSettings &screen)
{
    for (const auto colour : classes) {
        if (paper.*colour >= 0)
            m_paperOf.insert(screen.*colour, paper.*colour);
    }
}

QString PaperColours::onPaper(const QString &rtf) const
{
    static const QRegularExpression colour(u"\\\\red(\\d+)\\\\green(\\d+)\\\\blue(\\d+)"_s);
    const qsizetype table = rtf.indexOf("{\\colortbl"_L1);
    const qsizetype end = table < 0 ? -1 : rtf.indexOf(u'}', table);
    if (m_paperOf.isEmpty() || end < 0)
        return rtf;
    QString mapped;
    qsizetype done = table;
    auto entries = colour.globalMatch(rtf.sliced(0, end), table);
    while (entries.hasNext()) {
        const QRegularExpressionMatch entry = entries.next();
        const qint32 onScreen = colourOf(entry);
        mapped += QStringView(rtf).sliced(done, entry.capturedStart() - done);
        mapped += entryOf(m_paperOf.value(onScreen, onScreen));
        done = entry.capturedEnd();
    }
    return rtf.first(table) + mapped + rtf.sliced(done);
}

} // namespace ORVTListview
