// The rules of texts: words, numbers, line ends, access keys, number formats.

#include "fuzz/FuzzBytes.h"

#include "base/TextRules.h"
#include "shared/points/NumberFormat.h"
#include "shared/texts/AccessKeys.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

void checkWords(const QString &a, const QString &b)
{
    demand(isSameWord(a, b) == (a.toUpper() == b.toUpper()),
           "words are the same as hosts key them");
    demand(isSameWord(a, foldedCase(a).toUpper()) || foldedCase(a).toUpper() != a.toUpper(),
           "the folded word is the word");
    if (isNumeric(a))
        demand(toBoolean(a).has_value(), "a number is true or false");
}

void checkLineEnds(const QString &text)
{
    const QString lines = withCrLf(text);
    demand(withCrLf(lines) == lines, "line ends are written once");
    QString rest = lines;
    rest.remove(QStringLiteral("\r\n"));
    demand(!rest.contains(u'\r') && !rest.contains(u'\n'), "every line end is CR LF");
    const QString shown = asInBox(text);
    demand(asInBox(shown) == shown, "what a box gives it takes");
    demand(!shown.contains(QChar::Null) && !shown.contains(QChar::ParagraphSeparator),
           "a box has neither NUL nor U+2029");
}

struct Marked
{
    QString text;
    QChar key; // upper case; null without
};

Marked read(const QString &caption)
{
    Marked marked;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && ++i < caption.size() && caption[i] != u'&')
            marked.key = caption[i].toUpper();
        if (i < caption.size())
            marked.text += caption[i];
    }
    return marked;
}

// Keys for as many captions as there can be, when wishes are granted in order.
class MostKeys
{
public:
    explicit MostKeys(const QStringList &captions)
    {
        for (const QString &caption : captions)
            m_captions.append(read(caption));
        for (qsizetype i = 0; i < m_captions.size(); ++i) {
            const QChar wish = m_captions[i].key;
            if (wish.isLetterOrNumber() && !m_holders.contains(wish)) {
                m_holders.insert(wish, i);
                m_granted.insert(i);
            }
        }
    }

    qsizetype count()
    {
        for (qsizetype i = 0; i < m_captions.size(); ++i) {
            QSet<QChar> asked;
            if (!m_granted.contains(i))
                find(i, asked);
        }
        return m_holders.size();
    }

private:
    bool find(qsizetype caption, QSet<QChar> &asked)
    {
        for (const QChar c : m_captions[caption].text) {
            const QChar key = c.toUpper();
            if (!c.isLetterOrNumber() || asked.contains(key))
                continue;
            asked.insert(key);
            const qsizetype holder = m_holders.value(key, -1);
            if (holder >= 0 && (m_granted.contains(holder) || !find(holder, asked)))
                continue;
            m_holders.insert(key, caption);
            return true;
        }
        return false;
    }

    QList<Marked> m_captions;
    QHash<QChar, qsizetype> m_holders;
    QSet<qsizetype> m_granted;
};

void checkKeys(const QStringList &captions)
{
    const QStringList given = withAccessKeys(captions);
    demand(given.size() == captions.size(), "each caption is there");
    QSet<QChar> keys;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const Marked marked = read(given[i]);
        demand(marked.text == read(captions[i]).text, "a caption keeps its text");
        if (marked.key.isNull())
            continue;
        demand(!keys.contains(marked.key), "no two captions have one key");
        demand(marked.key.isLetterOrNumber(), "a key is a letter or a digit");
        keys.insert(marked.key);
    }
    demand(keys.size() == MostKeys(captions).count(), "as many captions as possible have a key");
    demand(withAccessKeys(given) == given, "keys that are given are wishes that are granted");
    demand(withAccessKeys(captions) == given, "the same captions get the same keys");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const int what = bytes.below(4);
    if (what == 0) {
        const QString first = bytes.text();
        checkWords(first, bytes.restText());
    } else if (what == 1) {
        checkLineEnds(bytes.restText());
    } else if (what == 2) {
        QStringList captions;
        while (!bytes.isEmpty() && captions.size() < 24)
            captions.append(bytes.text());
        checkKeys(captions);
    } else {
        const auto number = static_cast<qint32>(bytes.number());
        const QString format = bytes.restText();
        const QString shown = formatNumber(number, format);
        demand(shown.size() <= 2 * format.size() + 64, "a number is not longer than its format");
    }
    return 0;
}
