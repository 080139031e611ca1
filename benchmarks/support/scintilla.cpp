#include "support/scintilla.h"

#include "support/points.h"

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/language/WordClass.h"
#include "widgets/look/Colours.h"

#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <map>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

// The lexer's numbers of what it tells apart (SCE_B_…).
enum Style : int {
    CommentStyle = 1,
    ReservedWordStyle = 3,
    InputStyle = 10, // second to fourth list of words
    OutputStyle = 11,
    OtherNameStyle = 12,
};

class BasicLexer final : public QsciLexer
{
public:
    explicit BasicLexer(QObject *parent)
        : QsciLexer(parent)
    {
        m_words[1] = joined(wordsOf(ReservedWordColour));
        m_words[2] = joined(wordsOf(InputColour));
        m_words[3] = joined(wordsOf(OutputColour));
        m_words[4] = joined(wordsOf(VariableColour) + wordsOf(ConstantColour) + wordsOf(NviColour));
    }

    const char *language() const override { return "Controller program"; }
    const char *lexer() const override { return "vb"; }
    bool caseSensitive() const override { return false; }
    QString description(int style) const override
    {
        return style < 16 ? QString::number(style) : QString();
    }
    const char *keywords(int set) const override
    {
        const auto found = m_words.find(set);
        return found == m_words.end() ? nullptr : found->second.constData();
    }
    QColor defaultColor(int style) const override
    {
        const RichTextSettings colours = defaultColours();
        switch (style) {
        case CommentStyle:
            return Colours::toColor(colours.CommentColor, {});
        case ReservedWordStyle:
            return Colours::toColor(colours.ReservedWordColor, {});
        case InputStyle:
            return Colours::toColor(colours.InputColor, {});
        case OutputStyle:
            return Colours::toColor(colours.OutputColor, {});
        case OtherNameStyle:
            return Colours::toColor(colours.VariableColor, {});
        default:
            return Qt::black;
        }
    }

private:
    static QByteArray joined(const QStringList &words)
    {
        return words.join(u' ').toLower().toLatin1();
    }

    std::map<int, QByteArray> m_words;
};

constexpr int problemIndicator = 8;

int styleAt(const QsciScintilla &editor, qsizetype position)
{
    return static_cast<int>(
        editor.SendScintilla(QsciScintilla::SCI_GETSTYLEAT, static_cast<unsigned long>(position)));
}

} // namespace

struct Scintilla::Private
{
    QsciScintilla editor;
    BasicLexer lexer{&editor};
};

Scintilla::Scintilla(const QString &text)
    : d(std::make_unique<Private>())
{
    d->editor.setEolMode(QsciScintilla::EolWindows);
    d->editor.setLexer(&d->lexer);
    d->editor.setText(text);
}

Scintilla::~Scintilla() = default;

QAbstractScrollArea &Scintilla::widget() const
{
    return d->editor;
}

QString Scintilla::text() const
{
    return d->editor.text();
}

void Scintilla::putCaret(qsizetype position) const
{
    d->editor.SendScintilla(QsciScintilla::SCI_GOTOPOS, static_cast<unsigned long>(position));
}

void Scintilla::showAll(int problems, int bookmarks) const
{
    QsciScintilla &editor = d->editor;
    editor.setMarginLineNumbers(0, true);
    editor.setMarginWidth(0, u"00000000"_s);
    editor.setFolding(QsciScintilla::BoxedTreeFoldStyle);
    editor.setBraceMatching(QsciScintilla::SloppyBraceMatch);
    editor.setCaretLineVisible(true);
    editor.setIndentationGuides(true);
    editor.setWhitespaceVisibility(QsciScintilla::WsVisible);
    const int squiggle = editor.indicatorDefine(QsciScintilla::SquiggleIndicator, problemIndicator);
    const int sign = editor.markerDefine(QsciScintilla::Bookmark);
    const auto lineOf = [&](int thing, int things) {
        return static_cast<int>(qint64(thing) * editor.lines() / things);
    };
    for (int i = 0; i < problems; ++i) {
        const int line = lineOf(i, problems);
        editor.fillIndicatorRange(line, 0, line, std::max(1, editor.lineLength(line) - 2),
                                  squiggle);
    }
    for (int i = 0; i < bookmarks; ++i)
        editor.markerAdd(lineOf(i, bookmarks), sign);
}

int Scintilla::problems() const
{
    const QsciScintilla &editor = d->editor;
    const auto isMarked = [&](long position) {
        return editor.SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, problemIndicator,
                                    position) != 0;
    };
    int count = 0;
    for (int line = 0; line < editor.lines(); ++line)
        count += isMarked(editor.positionFromLineIndex(line, 0)) ? 1 : 0;
    return count;
}

int Scintilla::foldDepthAt(qsizetype position) const
{
    const long line = d->editor.SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION,
                                              static_cast<unsigned long>(position));
    int deepest = 0;
    constexpr int beside = 50;
    for (long other = std::max(0L, line - beside); other < line + beside; ++other) {
        const long level = d->editor.SendScintilla(QsciScintilla::SCI_GETFOLDLEVEL,
                                                   static_cast<unsigned long>(other));
        deepest =
            std::max(deepest, static_cast<int>(level & QsciScintilla::SC_FOLDLEVELNUMBERMASK) -
                                  static_cast<int>(QsciScintilla::SC_FOLDLEVELBASE));
    }
    return deepest;
}

void Scintilla::restyle() const
{
    d->editor.SendScintilla(QsciScintilla::SCI_CLEARDOCUMENTSTYLE);
    d->editor.SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
}

Scintilla::StyledWords Scintilla::styledWords() const
{
    StyledWords words;
    const QByteArray text = d->editor.text().toLatin1();
    int before = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isLineEnd = text[i] == '\r' || text[i] == '\n';
        const int style = isLineEnd ? 0 : styleAt(d->editor, i);
        if (style != before) {
            words.comments += style == CommentStyle;
            words.reservedWords += style == ReservedWordStyle;
            words.names += style >= InputStyle && style <= OtherNameStyle;
        }
        before = style;
    }
    return words;
}

} // namespace ORVTListview::bench
