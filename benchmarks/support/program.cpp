#include "support/program.h"

#include "support/points.h"

#include "editor/rules/language/Vocabulary.h"

#include <functional>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

class Dice
{
public:
    int below(qsizetype count)
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((m_state >> 33) % static_cast<quint64>(count));
    }
    bool oneIn(int count) { return below(count) == 0; }
    const QString &of(const QStringList &words) { return words[below(words.size())]; }

private:
    quint64 m_state = 20;
};

class ProgramWriter
{
public:
    explicit ProgramWriter(qsizetype characters)
        : m_wanted(characters)
    {
        for (qint32 colour = ConstantColour; colour <= NviColour; ++colour)
            m_words[static_cast<std::size_t>(colour)] = wordsOf(colour);
    }

    Program write()
    {
        while (m_program.text.size() < m_wanted)
            writeLine();
        return m_program;
    }

private:
    // --- lines ---

    void writeLine()
    {
        const int kind = m_dice.below(100);
        if (kind < 12)
            comment();
        else if (kind < 16)
            lineEnd();
        else if (kind < 36 && m_depth < 4)
            openIf();
        else if (kind < 56 && m_depth > 0)
            closeIf();
        else
            statement();
    }

    void comment()
    {
        static const QStringList prose{
            u"the"_s,   u"supply"_s,  u"air"_s,   u"is"_s, u"kept"_s,    u"above"_s, u"its"_s,
            u"limit"_s, u"morning"_s, u"until"_s, u"a"_s,  u"sensor,"_s, u"if"_s,    u"reads"_s};
        indent();
        put(m_dice.oneIn(4) ? u"rem"_s : u"REM"_s);
        for (int i = 4 + m_dice.below(9); i > 0; --i) {
            blank();
            put(m_dice.of(prose));
        }
        ++count(CommentColour);
        lineEnd();
    }

    void openIf()
    {
        indent();
        keyword(u"IF"_s);
        ++m_program.ifs;
        blank();
        condition();
        if (m_dice.oneIn(3)) {
            blank();
            keyword(m_dice.oneIn(2) ? u"AND"_s : u"OR"_s);
            blank();
            inBrackets([this] { condition(); });
        }
        lineEnd();
        ++m_depth;
        statement();
    }

    void closeIf()
    {
        --m_depth;
        indent();
        if (m_dice.oneIn(4)) {
            keyword(u"ELSE"_s);
            lineEnd();
            ++m_depth;
            statement();
            --m_depth;
            indent();
        }
        keyword(u"ENDIF"_s);
        lineEnd();
    }

    void statement()
    {
        indent();
        anyOf(m_dice.oneIn(2) ? OutputColour : VariableColour);
        // Some people align what they assign.
        for (int i = m_dice.oneIn(5) ? m_dice.below(8) : 0; i > 0; --i)
            blank();
        blank();
        symbol(u"="_s);
        blank();
        const int kind = m_dice.below(10);
        if (kind == 0)
            functionCall();
        else if (kind == 1)
            fanIn();
        else
            sum();
        lineEnd();
    }

    // --- parts of a line ---

    void condition()
    {
        static const QStringList comparisons{u">"_s, u"<"_s, u">="_s, u"<="_s, u"=="_s, u"!="_s};
        static const QStringList times{u"DAYOFWEEK"_s, u"HOUR"_s, u"MINUTE"_s, u"MONTH"_s};
        if (m_dice.oneIn(5))
            keyword(m_dice.of(times));
        else if (m_dice.oneIn(8))
            keyword(timerName(1 + m_dice.below(timerCount)));
        else
            operand();
        blank();
        symbol(m_dice.of(comparisons));
        blank();
        if (m_dice.oneIn(4))
            keyword(m_dice.oneIn(2) ? u"ON"_s : u"OFF"_s);
        else
            operand();
    }

    void sum()
    {
        static const QStringList signs{u"+"_s, u"-"_s, u"*"_s, u"/"_s};
        operand();
        for (int i = m_dice.below(3); i > 0; --i) {
            blank();
            symbol(m_dice.of(signs));
            blank();
            if (m_dice.oneIn(4))
                inBrackets([this] { sum(); });
            else
                operand();
        }
    }

    void functionCall()
    {
        static const QStringList functions = Vocabulary().FunctionWordList().words();
        keyword(m_dice.of(functions));
        blank();
        inBrackets([this] {
            operand();
            for (int i = 1 + m_dice.below(2); i > 0; --i) {
                blank();
                put(u","_s);
                blank();
                operand();
            }
        });
    }

    void fanIn()
    {
        keyword(Vocabulary::FanInWordList().words().at(m_dice.below(3)));
        blank();
        anyOf(NviColour);
    }

    void operand()
    {
        const int kind = m_dice.below(20);
        if (kind < 7)
            anyOf(InputColour);
        else if (kind < 11)
            anyOf(VariableColour);
        else if (kind < 14)
            anyOf(ConstantColour);
        else if (kind < 15)
            anyOf(NviColour);
        else if (kind < 19)
            put(m_dice.oneIn(3) ? u"%1.5"_s.arg(m_dice.below(50))
                                : QString::number(m_dice.below(100)));
        else
            put(u"Unknown%1"_s.arg(m_dice.below(10)));
    }

    // --- words ---

    void anyOf(qint32 colour)
    {
        listed(m_dice.of(m_words[static_cast<std::size_t>(colour)]), colour);
    }
    void keyword(const QString &word) { listed(word, ReservedWordColour); }
    void symbol(const QString &word)
    {
        keyword(word);
        ++m_program.operators;
    }

    void listed(const QString &word, qint32 colour)
    {
        const QString typed = m_dice.oneIn(8) ? word.toLower() : word;
        put(typed, word);
        ++count(colour);
    }

    // Colouring sets a bracket off by one blank, however it was typed.
    void inBrackets(const std::function<void()> &content)
    {
        const bool isTight = m_dice.oneIn(2);
        put(isTight ? u"("_s : u"( "_s, u"( "_s);
        content();
        put(isTight ? u")"_s : u" )"_s, u" )"_s);
    }

    void indent()
    {
        if (m_depth == 1 && m_dice.oneIn(6)) {
            put(u"\t"_s);
            return;
        }
        for (int i = 0; i < m_depth * 4; ++i)
            blank();
    }

    void blank() { put(u" "_s); }
    void lineEnd() { put(u"\r\n"_s); }
    void put(const QString &text) { put(text, text); }
    void put(const QString &typed, const QString &shown)
    {
        m_program.text += typed;
        m_program.shown += shown;
    }
    qsizetype &count(qint32 colour) { return m_program.words[static_cast<std::size_t>(colour)]; }

    qsizetype m_wanted;
    Dice m_dice;
    Program m_program;
    std::array<QStringList, colourSlots + 1> m_words;
    int m_depth = 0;
};

} // namespace

Program makeProgram(qsizetype characters)
{
    return ProgramWriter(characters).write();
}

} // namespace ORVTListview::bench
