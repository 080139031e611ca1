#include "workbench/settings/ColourPreview.h"

#include "widgets/look/Colours.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QTextCursor>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

struct Word
{
    QStringView text;
    qint32 RichTextSettings::*colour; // null for what belongs to no class
};

constexpr auto reserved = &RichTextSettings::ReservedWordColor;

// A program is written in the controllers' language, whatever the user's is.
const QList<Word> &sample()
{
    static const QList<Word> words = {
        {u"REM Supply air\n", &RichTextSettings::CommentColor},
        {u"IF ", reserved},
        {u"SupplyTemp", &RichTextSettings::InputColor},
        {u" > ", nullptr},
        {u"SupplyMax", &RichTextSettings::ConstantColor},
        {u" AND ", reserved},
        {u"ZoneTempIn", &RichTextSettings::nviFPAColor},
        {u" < 21\n    ", nullptr},
        {u"CoolingValve", &RichTextSettings::OutputColor},
        {u" = ", nullptr},
        {u"Demand", &RichTextSettings::VariableColor},
        {u" * 0.5\n    ", nullptr},
        {u"SupplyTempOut", &RichTextSettings::nvoFPAColor},
        {u" = ", nullptr},
        {u"SupplyTemp", &RichTextSettings::InputColor},
        {u"\n", nullptr},
        {u"ENDIF", reserved},
    };
    return words;
}

QFont fontOf(const RichTextSettings &settings)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!settings.FontName.isEmpty())
        font.setFamily(settings.FontName);
    font.setStyleHint(QFont::Monospace);
    if (settings.FontSize > 0)
        font.setPointSize(settings.FontSize);
    return font;
}

} // namespace

ColourPreview::ColourPreview(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    setAccessibleName(tr("Preview"));
}

void ColourPreview::show(const RichTextSettings &settings)
{
    QPalette palette;
    palette.setColor(QPalette::Text, Colours::textOn(settings.BackColor, palette));
    palette.setColor(QPalette::Base, Colours::toColor(settings.BackColor, palette));
    setPalette(palette);
    setFont(fontOf(settings));
    clear();
    QTextCursor end(document());
    for (const Word &word : sample()) {
        QTextCharFormat format;
        if (word.colour)
            format.setForeground(Colours::toColor(settings.*word.colour, palette));
        end.insertText(word.text.toString(), format);
    }
}

} // namespace ORVTListview
