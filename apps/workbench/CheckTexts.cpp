#include "CheckTexts.h"

#include "editor/rules/language/Vocabulary.h"

#include <QtCore/QCoreApplication>

namespace ORVTListview {
namespace {

struct CheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(CheckTexts)
};

} // namespace

QString faultText(const ProgramFinding &finding)
{
    switch (finding.fault) {
    case Fault::UnknownName:
        return CheckTexts::tr("%1 is not known").arg(finding.word);
    case Fault::ElseWithoutIf:
        return CheckTexts::tr("ELSE without IF");
    case Fault::SecondElse:
        return CheckTexts::tr("Second ELSE of one IF");
    case Fault::EndifWithoutIf:
        return CheckTexts::tr("ENDIF without IF");
    case Fault::IfWithoutEndif:
        return CheckTexts::tr("IF without ENDIF");
    }
    return {};
}

QString findingText(const ProgramFinding &finding)
{
    return CheckTexts::tr("Line %1: %2").arg(QString::number(finding.line), faultText(finding));
}

QString classText(const ProgramWord &word)
{
    switch (word.wordClass) {
    case WordClass::Variable:
        return CheckTexts::tr("Variable");
    case WordClass::Constant:
        return CheckTexts::tr("Constant");
    case WordClass::Input:
        return CheckTexts::tr("Input");
    case WordClass::Output:
        return CheckTexts::tr("Output");
    case WordClass::Nvi:
        return CheckTexts::tr("Network variable input");
    case WordClass::Keyword:
        return CheckTexts::tr("Reserved word");
    case WordClass::TimeWord:
        return CheckTexts::tr("Time word");
    case WordClass::Function:
        return CheckTexts::tr("Function");
    case WordClass::FanIn:
        return Vocabulary::FanInWordList().contains(word.word) ? CheckTexts::tr("Fan-in word")
                                                               : CheckTexts::tr("Indexed name");
    case WordClass::Comment:
    case WordClass::Other:
        break;
    }
    return CheckTexts::tr("Number");
}

} // namespace ORVTListview
