#include "project/analysis/LineParser.h"

#include "base/TextRules.h"

#include <QtCore/QSet>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

// Brackets in brackets; a controller has fewer.
constexpr int deepest = 100;

class LineReader
{
public:
    LineReader(QStringView line, const ProgramWords &words)
        : m_line(line)
        , m_words(words)
    {
        m_parsed.tokens = tokensOf(line, words, m_parsed.problems);
    }

    ParsedLine read() &&;

private:
    void readStatement();
    void readIf();
    void readClear();
    void readAssignment();
    void keep(StatementKind kind, qsizetype first);
    void checkTarget(const ProgramToken &target);
    void checkEnd();

    bool readExpression();
    bool readAnds();
    bool readComparison();
    bool readSum();
    bool readProduct();
    bool readFactor();
    bool readBracketed();
    bool readFunction();
    bool readValues(qint32 &count);
    bool readNetworkInput();
    bool readWith(bool (LineReader::*part)(), bool (LineReader::*goesOn)());
    bool takesOr() { return take(TokenKind::Or); }
    bool takesAnd() { return take(TokenKind::And); }
    bool takesProduct() { return take(TokenKind::Product); }
    bool takesSign();
    bool takesComparison();

    bool isAt(TokenKind kind, qsizetype ahead = 0) const;
    bool isAtEnd() const { return m_at >= m_parsed.tokens.size(); }
    bool isAtStatement() const;
    bool isAtOperand() const;
    bool take(TokenKind kind);
    bool takeClose(const ProgramToken &bracket);
    const ProgramToken &token() const { return m_parsed.tokens[m_at]; }
    QString text(const ProgramToken &token) const;
    bool isSigned(const ProgramToken &token) const;

    void tell(Fault fault, const ProgramToken &token, qint32 count = 0);
    bool fail(Fault fault, const ProgramToken &token);
    bool failBehind() { return fail(Fault::MissingValue, m_parsed.tokens[m_at - 1]); }
    bool failAtToken();
    void passOver();
    void tellUnknown();
    void sortProblems();

    QStringView m_line;
    const ProgramWords &m_words;
    ParsedLine m_parsed;
    qsizetype m_at = 0;
    int m_depth = 0;
    bool m_isCondition = false;
};

ParsedLine LineReader::read() &&
{
    tellUnknown();
    while (!isAtEnd())
        readStatement();
    sortProblems();
    return std::move(m_parsed);
}

// A name is told once a line.
void LineReader::tellUnknown()
{
    QSet<QString> told;
    for (const ProgramToken &each : std::as_const(m_parsed.tokens)) {
        if (each.kind != TokenKind::Unknown)
            continue;
        const qsizetype before = told.size();
        told.insert(foldedCase(text(each)));
        if (told.size() > before)
            tell(Fault::UnknownName, each);
    }
}

void LineReader::sortProblems()
{
    std::stable_sort(
        m_parsed.problems.begin(), m_parsed.problems.end(),
        [](const LineProblem &a, const LineProblem &b) { return a.place.start < b.place.start; });
}

void LineReader::readStatement()
{
    const qsizetype first = m_at;
    m_depth = 0;
    m_isCondition = false;
    if (isAt(TokenKind::If))
        return readIf();
    if (isAt(TokenKind::Clear))
        return readClear();
    if (take(TokenKind::Else))
        return keep(StatementKind::Else, first);
    if (take(TokenKind::EndIf))
        return keep(StatementKind::EndIf, first);
    if (take(TokenKind::End))
        return keep(StatementKind::End, first);
    if (isAt(TokenKind::Equals, 1) && isAtOperand())
        return readAssignment();
    if (isAt(TokenKind::Unknown))
        passOver(); // it has been told that the word is not known
    else if (isAtOperand() || isAt(TokenKind::Open))
        fail(Fault::NoStatement, token());
    else
        failAtToken();
}

void LineReader::readIf()
{
    const qsizetype first = m_at++;
    m_isCondition = true;
    if (readExpression())
        keep(StatementKind::If, first);
}

void LineReader::readClear()
{
    const qsizetype first = m_at++;
    if (readNetworkInput())
        keep(StatementKind::Clear, first);
}

void LineReader::readAssignment()
{
    const qsizetype first = m_at;
    checkTarget(token());
    m_parsed.written.append(first);
    m_at += 2;
    if (readExpression())
        keep(StatementKind::Assignment, first);
}

void LineReader::keep(StatementKind kind, qsizetype first)
{
    m_parsed.statements.append({kind, first, m_at});
    const bool endsByItself = kind != StatementKind::Assignment && kind != StatementKind::If &&
                              kind != StatementKind::Clear;
    if (!endsByItself)
        checkEnd();
}

// Behind a whole statement another one begins, or the line ends.
void LineReader::checkEnd()
{
    if (isAtEnd() || isAtStatement())
        return;
    failAtToken();
}

void LineReader::checkTarget(const ProgramToken &target)
{
    if (target.kind == TokenKind::Unknown)
        return;
    if (target.kind != TokenKind::Name)
        tell(Fault::NotWritable, target);
    else if (target.wordClass == WordClass::Constant)
        tell(Fault::WriteToConstant, target);
    else if (target.wordClass == WordClass::Input || target.wordClass == WordClass::Nvi)
        tell(Fault::WriteToInput, target);
}

bool LineReader::readWith(bool (LineReader::*part)(), bool (LineReader::*goesOn)())
{
    do {
        if (!(this->*part)())
            return false;
    } while ((this->*goesOn)());
    return true;
}

bool LineReader::readExpression()
{
    return readWith(&LineReader::readAnds, &LineReader::takesOr);
}

bool LineReader::readAnds()
{
    return readWith(&LineReader::readComparison, &LineReader::takesAnd);
}

bool LineReader::readComparison()
{
    return readSum() && (!takesComparison() || readSum());
}

bool LineReader::readSum()
{
    return readWith(&LineReader::readProduct, &LineReader::takesSign);
}

bool LineReader::readProduct()
{
    return readWith(&LineReader::readFactor, &LineReader::takesProduct);
}

bool LineReader::takesComparison()
{
    if (take(TokenKind::Comparison))
        return true;
    if (!isAt(TokenKind::Equals) || !m_isCondition)
        return false;
    tell(Fault::NoComparison, token());
    ++m_at;
    return true;
}

// "-3" behind a value is one word, and meant for two.
bool LineReader::takesSign()
{
    if (take(TokenKind::Sign))
        return true;
    if (!isAt(TokenKind::Number) || !isSigned(token()))
        return false;
    tell(Fault::MissingBlanks, token());
    return true;
}

bool LineReader::readFactor()
{
    while (take(TokenKind::Sign)) {
    }
    if (isAtEnd())
        return failBehind();
    switch (token().kind) {
    case TokenKind::Unknown:
    case TokenKind::Number:
    case TokenKind::Name:
    case TokenKind::TimeWord:
        ++m_at;
        return true;
    case TokenKind::Open:
        return readBracketed();
    case TokenKind::Function:
        return readFunction();
    case TokenKind::FanIn:
        ++m_at;
        return readNetworkInput();
    default:
        return failBehind();
    }
}

bool LineReader::readBracketed()
{
    const ProgramToken bracket = token();
    if (++m_depth > deepest)
        return fail(Fault::TooDeep, bracket);
    ++m_at;
    if (!readExpression())
        return false;
    --m_depth;
    return takeClose(bracket);
}

bool LineReader::readFunction()
{
    const ProgramToken function = token();
    ++m_at;
    if (!isAt(TokenKind::Open))
        return fail(Fault::MissingBracket, function);
    const ProgramToken bracket = token();
    if (++m_depth > deepest)
        return fail(Fault::TooDeep, bracket);
    ++m_at;
    qint32 count = 0;
    if (!isAt(TokenKind::Close) && !readValues(count))
        return false;
    --m_depth;
    if (!takeClose(bracket))
        return false;
    const ValueBounds bounds = valuesOf(text(function));
    if (count < bounds.least || (bounds.most >= 0 && count > bounds.most))
        tell(Fault::ValueCount, function, count);
    return true;
}

bool LineReader::readValues(qint32 &count)
{
    do {
        if (!readExpression())
            return false;
        ++count;
    } while (take(TokenKind::Comma));
    return true;
}

bool LineReader::readNetworkInput()
{
    if (!isAt(TokenKind::Name) && !isAt(TokenKind::Unknown))
        return failBehind();
    if (isAt(TokenKind::Name) && token().wordClass != WordClass::Nvi)
        tell(Fault::NotNetworkInput, token());
    ++m_at;
    return true;
}

bool LineReader::takeClose(const ProgramToken &bracket)
{
    if (take(TokenKind::Close))
        return true;
    return isAtEnd() || isAtStatement() ? fail(Fault::OpenBracket, bracket) : failAtToken();
}

bool LineReader::isAt(TokenKind kind, qsizetype ahead) const
{
    return m_at + ahead < m_parsed.tokens.size() && m_parsed.tokens[m_at + ahead].kind == kind;
}

bool LineReader::isAtStatement() const
{
    const TokenKind kind = token().kind;
    const bool isWord =
        kind == TokenKind::Clear || (kind >= TokenKind::If && kind <= TokenKind::End);
    return isWord || (isAtOperand() && isAt(TokenKind::Equals, 1));
}

bool LineReader::isAtOperand() const
{
    return token().kind >= TokenKind::Unknown && token().kind <= TokenKind::FanIn;
}

bool LineReader::take(TokenKind kind)
{
    const bool isTaken = isAt(kind);
    m_at += isTaken ? 1 : 0;
    return isTaken;
}

QString LineReader::text(const ProgramToken &token) const
{
    return m_line.sliced(token.place.start, token.place.length).toString();
}

bool LineReader::isSigned(const ProgramToken &token) const
{
    const QChar first = m_line[token.place.start];
    return first == u'+' || first == u'-';
}

void LineReader::tell(Fault fault, const ProgramToken &token, qint32 count)
{
    m_parsed.problems.append({fault, token.place, text(token), count});
}

bool LineReader::fail(Fault fault, const ProgramToken &token)
{
    tell(fault, token);
    passOver();
    return false;
}

// Goes on with the next word that begins a statement whatever stands before it. What
// would be assigned to on the way counts as written.
void LineReader::passOver()
{
    const auto begins = [this] {
        return isAt(TokenKind::Clear) || isAt(TokenKind::If) || isAt(TokenKind::Else) ||
               isAt(TokenKind::EndIf) || isAt(TokenKind::End);
    };
    for (; !isAtEnd() && !begins(); ++m_at) {
        if (isAtOperand() && isAt(TokenKind::Equals, 1) && !m_isCondition)
            m_parsed.written.append(m_at);
    }
}

// At what can stand neither where it is nor behind what is whole there.
bool LineReader::failAtToken()
{
    if (isAt(TokenKind::Close))
        return fail(Fault::CloseBracket, token());
    const bool isValue = isAtOperand() || isAt(TokenKind::Open);
    return fail(isValue ? Fault::MissingOperator : Fault::Unexpected, token());
}

} // namespace

ParsedLine parseLine(QStringView line, const ProgramWords &words)
{
    return LineReader(line, words).read();
}

ValueBounds valuesOf(QStringView function)
{
    if (isSameWord(function, u"SQRT"))
        return {1, 1};
    if (isSameWord(function, u"SWITCH") || isSameWord(function, u"LIMIT"))
        return {3, 3};
    return {2, -1}; // AVERAGE, HISEL, LOWSEL
}

} // namespace ORVTListview
