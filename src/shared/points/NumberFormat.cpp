#include "shared/points/NumberFormat.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

struct Token
{
    enum class Kind { Zero, Digit, Point, Text };

    Kind kind = Kind::Text;
    QChar text;

    bool isPlace() const { return kind == Kind::Zero || kind == Kind::Digit; }
};

// One of the formats between semicolons.
struct Section
{
    QList<Token> tokens;
    qsizetype point = -1; // of the decimal point in tokens; -1 without one
    bool grouped = false;
    bool percent = false;

    bool isEmpty() const { return tokens.isEmpty(); }
    qsizetype integerEnd() const { return point < 0 ? tokens.size() : point; }
};

class Parser
{
public:
    explicit Parser(QStringView format)
        : m_rest(format)
    {
    }

    QList<Section> sections()
    {
        QList<Section> all{{}};
        while (!m_rest.isEmpty()) {
            const QChar c = take();
            if (c == u';')
                all.append(Section());
            else
                read(c, all.last());
        }
        return all;
    }

private:
    QChar take()
    {
        const QChar c = m_rest.front();
        m_rest = m_rest.sliced(1);
        return c;
    }

    void read(QChar c, Section &section)
    {
        if (c == u'"')
            readQuoted(section);
        else if (c == u'\\')
            addText(m_rest.isEmpty() ? c : take(), section);
        else if (c == u'0' || c == u'#')
            section.tokens.append({c == u'0' ? Token::Kind::Zero : Token::Kind::Digit, c});
        else if (c == u'.' && section.point < 0)
            readPoint(section);
        else if (c == u',' && isBetweenPlaces(section))
            section.grouped = true;
        else
            readText(c, section);
    }

    void readQuoted(Section &section)
    {
        while (!m_rest.isEmpty()) {
            const QChar c = take();
            if (c == u'"')
                return;
            addText(c, section);
        }
    }

    static void readPoint(Section &section)
    {
        section.point = section.tokens.size();
        section.tokens.append({Token::Kind::Point, u'.'});
    }

    static void readText(QChar c, Section &section)
    {
        section.percent = section.percent || c == u'%';
        addText(c, section);
    }

    bool isBetweenPlaces(const Section &section) const
    {
        return section.point < 0 && !section.isEmpty() && section.tokens.last().isPlace() &&
               (m_rest.startsWith(u'0') || m_rest.startsWith(u'#'));
    }

    static void addText(QChar c, Section &section)
    {
        section.tokens.append({Token::Kind::Text, c});
    }

    QStringView m_rest;
};

class Writer
{
public:
    Writer(const Section &section, qint64 magnitude)
        : m_section(section)
        // Zero has no digit of its own: only a "0" place shows it.
        , m_digits(magnitude == 0 ? QString() : QString::number(magnitude))
    {
    }

    QString text()
    {
        const auto begin = m_section.tokens.cbegin();
        const auto integerEnd = begin + m_section.integerEnd();
        const auto places = std::count_if(begin, integerEnd, std::mem_fn(&Token::isPlace));
        m_place = places;
        if (places == 0 && m_section.point >= 0)
            writeSurplus(0);
        for (auto token = begin; token != integerEnd; ++token) {
            if (token->isPlace() && m_place == places)
                writeSurplus(places);
            writeInteger(*token);
        }
        std::for_each(integerEnd, m_section.tokens.cend(), [this](const Token &t) { write(t); });
        return std::move(m_text);
    }

private:
    // Places count from the right, from 0, and so do the digits below.

    void writeSurplus(qsizetype places)
    {
        for (qsizetype digit = m_digits.size() - 1; digit >= places; --digit)
            writeDigit(digit);
    }

    void writeInteger(const Token &token)
    {
        if (!token.isPlace())
            m_text.append(token.text);
        else if (--m_place < m_digits.size() || token.kind == Token::Kind::Zero)
            writeDigit(m_place);
    }

    void writeDigit(qsizetype digit)
    {
        m_text.append(digit < m_digits.size() ? m_digits.at(m_digits.size() - 1 - digit) : u'0');
        if (m_section.grouped && digit > 0 && digit % 3 == 0)
            m_text.append(u',');
    }

    void write(const Token &token)
    {
        if (token.kind != Token::Kind::Digit)
            m_text.append(token.text);
    }

    const Section &m_section;
    QString m_digits;
    QString m_text;
    qsizetype m_place = 0; // of the next digit place
};

QString expanded(const QString &format)
{
    static const QHash<QString, QString> named{
        {u"general number"_s, u""_s},
        {u"fixed"_s, u"0.00"_s},
        {u"standard"_s, u"#,##0.00"_s},
        {u"percent"_s, u"0.00%"_s},
    };
    return named.value(format.toLower(), format);
}

} // namespace

QString formatNumber(qint32 value, const QString &format)
{
    const QList<Section> sections = Parser(expanded(format)).sections();
    const qsizetype wanted = value > 0 ? 0 : value < 0 ? 1 : 2;
    const bool hasOwn = wanted < sections.size() && !sections.at(wanted).isEmpty();
    const Section &section = sections.at(hasOwn ? wanted : 0);
    if (section.isEmpty())
        return QString::number(value);

    const qint64 magnitude = std::abs(qint64{value}) * (section.percent ? 100 : 1);
    const QString text = Writer(section, magnitude).text();
    return value < 0 && !hasOwn ? u'-' + text : text;
}

} // namespace ORVTListview
