#include "shared/texts/AccessKeys.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>

#include <algorithm>

namespace ORVTListview {
namespace {

struct Caption
{
    QString text; // without marks
    qsizetype wish = -1;
};

Caption parsed(const QString &marked)
{
    Caption caption;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (marked[i] == u'&' && ++i < marked.size() && marked[i] != u'&')
            caption.wish = caption.text.size();
        if (i < marked.size())
            caption.text.append(marked[i]);
    }
    return caption;
}

QString marked(const QString &text, qsizetype key)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == key || text[i] == u'&')
            result.append(u'&');
        result.append(text[i]);
    }
    return result;
}

bool isAsciiWord(QChar c)
{
    return c.unicode() < 128 && c.isLetterOrNumber();
}

// The lower, the better; none for a sign, whose underline nobody sees.
enum Rank { FirstLetter, AsciiLetter, OtherLetter, NoKey };

Rank rankOf(const QString &text, qsizetype i)
{
    const QChar c = text[i];
    if (isAsciiWord(c))
        return i == 0 || !text[i - 1].isLetterOrNumber() ? FirstLetter : AsciiLetter;
    return c.isLetterOrNumber() ? OtherLetter : NoKey;
}

QList<qsizetype> candidates(const QString &text)
{
    QList<qsizetype> places;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (rankOf(text, i) != NoKey)
            places << i;
    }
    std::stable_sort(places.begin(), places.end(), [&](qsizetype left, qsizetype right) {
        return rankOf(text, left) < rankOf(text, right);
    });
    return places;
}

// Gives captions their keys one after the other. One that finds its candidates
// taken makes their holders move on, if they can.
class Assignment
{
public:
    explicit Assignment(const QList<Caption> &captions)
        : m_captions(captions)
        , m_keys(captions.size(), -1)
    {
        for (const Caption &caption : captions)
            m_candidates << candidates(caption.text);
    }

    void grantWish(qsizetype caption)
    {
        const qsizetype wish = m_captions[caption].wish;
        if (wish < 0 || rankOf(m_captions[caption].text, wish) == NoKey ||
            m_holders.contains(keyAt(caption, wish)))
            return;
        m_candidates[caption] = {wish}; // never moves on
        give(caption, wish);
    }

    void assign(qsizetype caption)
    {
        QSet<QChar> asked;
        if (m_keys[caption] < 0 && !takeFree(caption))
            displace(caption, asked);
    }

    qsizetype key(qsizetype caption) const { return m_keys[caption]; }

private:
    QChar keyAt(qsizetype caption, qsizetype place) const
    {
        return m_captions[caption].text[place].toUpper();
    }

    void give(qsizetype caption, qsizetype place)
    {
        m_holders[keyAt(caption, place)] = caption;
        m_keys[caption] = place;
    }

    bool takeFree(qsizetype caption)
    {
        for (const qsizetype place : m_candidates[caption]) {
            if (m_holders.contains(keyAt(caption, place)))
                continue;
            give(caption, place);
            return true;
        }
        return false;
    }

    bool displace(qsizetype caption, QSet<QChar> &asked)
    {
        for (const qsizetype place : m_candidates[caption]) {
            const QChar key = keyAt(caption, place);
            if (asked.contains(key))
                continue;
            asked << key;
            const qsizetype holder = m_holders.value(key);
            if (!takeFree(holder) && !displace(holder, asked))
                continue;
            give(caption, place);
            return true;
        }
        return false;
    }

    const QList<Caption> &m_captions;
    QList<QList<qsizetype>> m_candidates; // places in the text, best first
    QHash<QChar, qsizetype> m_holders;    // upper-case key to caption
    QList<qsizetype> m_keys;              // places in the text
};

} // namespace

QStringList withAccessKeys(const QStringList &captions)
{
    QList<Caption> plain;
    for (const QString &caption : captions)
        plain << parsed(caption);

    Assignment assignment(plain);
    for (qsizetype i = 0; i < plain.size(); ++i)
        assignment.grantWish(i);
    for (qsizetype i = 0; i < plain.size(); ++i)
        assignment.assign(i);

    QStringList result;
    for (qsizetype i = 0; i < plain.size(); ++i)
        result << marked(plain[i].text, assignment.key(i));
    return result;
}

} // namespace ORVTListview
