#include "CheckTexts.h"

#include "widgets/look/CellText.h"

#include <QtCore/QCoreApplication>

namespace ORVTListview {
namespace {

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(CheckTexts)
};

// Of a function that has been given another number of values.
QString countText(const LineProblem &problem)
{
    const ValueBounds bounds = valuesOf(problem.word);
    const QString wanted = QString::number(bounds.least);
    const QString given = QString::number(problem.count);
    if (bounds.most < 0)
        return CheckTexts::tr("%1 needs %2 values or more and has %3")
            .arg(problem.word, wanted, given);
    if (bounds.most == 1)
        return CheckTexts::tr("%1 needs one value and has %2").arg(problem.word, given);
    return CheckTexts::tr("%1 needs %2 values and has %3").arg(problem.word, wanted, given);
}

// The texts that name the word.
QString textWithWord(Fault fault)
{
    switch (fault) {
    case Fault::UnknownName:
        return CheckTexts::tr("%1 is not known");
    case Fault::MissingBlanks:
        return CheckTexts::tr("Blanks are missing in %1");
    case Fault::NoStatement:
        return CheckTexts::tr("%1 begins no statement");
    case Fault::Unexpected:
        return CheckTexts::tr("%1 cannot stand here");
    case Fault::MissingValue:
        return CheckTexts::tr("A value is missing behind %1");
    case Fault::MissingOperator:
        return CheckTexts::tr("An operator is missing before %1");
    case Fault::MissingBracket:
        return CheckTexts::tr("%1 needs its values in brackets");
    case Fault::NotNetworkInput:
        return CheckTexts::tr("%1 is no network variable input");
    case Fault::WriteToInput:
        return CheckTexts::tr("%1 is an input, which no program can set");
    case Fault::WriteToConstant:
        return CheckTexts::tr("%1 is a constant, which no program can set");
    case Fault::NotWritable:
        return CheckTexts::tr("%1 cannot be set");
    case Fault::NeverWritten:
        return CheckTexts::tr("%1 is read, but never set");
    case Fault::NeverRead:
        return CheckTexts::tr("%1 is set, but never read");
    default:
        return {};
    }
}

QString textWithoutWord(Fault fault)
{
    switch (fault) {
    case Fault::OpenBracket:
        return CheckTexts::tr("Nothing closes this bracket");
    case Fault::CloseBracket:
        return CheckTexts::tr("This bracket closes nothing");
    case Fault::TooDeep:
        return CheckTexts::tr("There are too many brackets in brackets");
    case Fault::NoComparison:
        return CheckTexts::tr("= sets a value, == compares");
    case Fault::ElseWithoutIf:
        return CheckTexts::tr("ELSE without IF");
    case Fault::SecondElse:
        return CheckTexts::tr("Second ELSE of one IF");
    case Fault::EndifWithoutIf:
        return CheckTexts::tr("ENDIF without IF");
    case Fault::IfWithoutEndif:
        return CheckTexts::tr("IF without ENDIF");
    default:
        return {};
    }
}

} // namespace

QString shortened(const QString &word)
{
    constexpr qsizetype longest = 60;
    return beginningOf(word, longest);
}

QString severityName(ProblemSeverity severity)
{
    switch (severity) {
    case ProblemSeverity::Error:
        return CheckTexts::tr("Error");
    case ProblemSeverity::Warning:
        return CheckTexts::tr("Warning");
    case ProblemSeverity::Hint:
        return CheckTexts::tr("Hint");
    }
    return {};
}

ProblemSeverity severityOf(Fault fault)
{
    switch (fault) {
    case Fault::NoComparison:
    case Fault::NotNetworkInput:
    case Fault::NeverWritten:
        return ProblemSeverity::Warning;
    case Fault::NeverRead:
        return ProblemSeverity::Hint;
    default:
        return ProblemSeverity::Error;
    }
}

QString faultText(const LineProblem &problem)
{
    if (problem.fault == Fault::ValueCount)
        return countText(problem);
    const QString text = textWithWord(problem.fault);
    return text.isEmpty() ? textWithoutWord(problem.fault) : text.arg(shortened(problem.word));
}

QString problemText(const ProgramProblem &problem)
{
    return CheckTexts::tr("Line %1: %2")
        .arg(QString::number(problem.line), faultText(problem.found));
}

QString statementName(StatementKind kind)
{
    switch (kind) {
    case StatementKind::Assignment:
        return CheckTexts::tr("Assignment");
    case StatementKind::If:
        return CheckTexts::tr("Condition");
    case StatementKind::Else:
        return CheckTexts::tr("Otherwise");
    case StatementKind::EndIf:
        return CheckTexts::tr("End of a condition");
    case StatementKind::End:
        return CheckTexts::tr("End of the program");
    case StatementKind::Clear:
        return CheckTexts::tr("Deletion of network values");
    }
    return {};
}

} // namespace ORVTListview
