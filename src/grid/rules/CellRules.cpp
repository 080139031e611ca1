#include "grid/rules/CellRules.h"

#include "shared/texts/TextTable.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDecimals = 15;

CellAnswer taken(QString text)
{
    return {.text = std::move(text)};
}

CellAnswer refused(const QString &sentence)
{
    return {.refusal = sentence};
}

// The digits of a number as it is kept: "-012,50" makes "-12.50". None for what is no
// number.
std::optional<QString> digitsOf(QString typed, const QLocale &locale)
{
    typed.replace(QChar(u'\u2212'), u'-');
    if (!typed.contains(u'.'))
        typed.replace(locale.decimalPoint(), u"."_s);
    static const QRegularExpression number(u"^([+-]?)0*([0-9]*)(\\.[0-9]*)?$"_s);
    const QRegularExpressionMatch match = number.match(typed);
    const bool hasDigit =
        std::any_of(typed.cbegin(), typed.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!match.hasMatch() || !hasDigit)
        return std::nullopt;
    const QString whole = match.captured(2).isEmpty() ? u"0"_s : match.captured(2);
    const QString part = match.captured(3).size() > 1 ? match.captured(3) : QString();
    const QString kept = whole + part;
    return match.captured(1) == u"-" && kept.toDouble() != 0 ? u'-' + kept : kept;
}

int writtenDecimals(const QString &digits)
{
    const qsizetype point = digits.indexOf(u'.');
    return point < 0 ? 0 : static_cast<int>(digits.size() - point - 1);
}

int neededDecimals(QString digits)
{
    while (digits.contains(u'.') && digits.endsWith(u'0'))
        digits.chop(1);
    return writtenDecimals(digits);
}

QString withoutUnit(const QString &typed, const QString &unit)
{
    const bool has = !unit.isEmpty() && typed.endsWith(unit, Qt::CaseInsensitive);
    return has ? typed.chopped(unit.size()).trimmed() : typed;
}

// As a sentence tells it.
QString withUnit(double bound, const CellRule &rule, const QLocale &locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString number = plain.toString(bound, 'g', mostDecimals);
    return rule.unit.isEmpty() ? number : number + u' ' + rule.unit;
}

std::optional<QString> choiceOf(const QStringList &choices, const QString &typed)
{
    const auto found =
        std::find_if(choices.cbegin(), choices.cend(), [&typed](const QString &choice) {
            return choice.compare(typed, Qt::CaseInsensitive) == 0;
        });
    return found == choices.cend() ? std::nullopt : std::optional(*found);
}

// Cells keep the words of the language that was spoken when they were entered, so those of
// all the library's languages are known, beside those of a host's.
QStringList yesWords()
{
    return {Localise(u"Yes"_s), u"Yes"_s, u"Ja"_s, u"Oui"_s, u"S\u00ed"_s};
}

QStringList noWords()
{
    return {Localise(u"No"_s), u"No"_s, u"Nein"_s, u"Non"_s};
}

bool hasOwnWords(const CellRule &rule)
{
    return rule.kind == CellRule::YesNo && rule.choices.size() < 2;
}

CellAnswer checkedText(const CellRule &rule, QString typed)
{
    if (rule.maxLength > 0 && typed.size() > rule.maxLength)
        return refused(Localise(u"Characters at most: %1."_s).arg(rule.maxLength));
    if (rule.pattern.isEmpty())
        return taken(std::move(typed));
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(rule.pattern));
    if (pattern.match(typed).hasMatch())
        return taken(std::move(typed));
    return refused(rule.hint.isEmpty() ? Localise(u"This text does not fit here."_s) : rule.hint);
}

CellAnswer checkedRange(const CellRule &rule, const QString &digits, const QLocale &locale)
{
    if (neededDecimals(digits) > rule.decimals && rule.decimals <= 0)
        return refused(Localise(u"Only a whole number fits here."_s));
    if (neededDecimals(digits) > rule.decimals)
        return refused(Localise(u"Decimals at most: %1."_s).arg(rule.decimals));
    const double number = digits.toDouble();
    if (number < rule.minimum)
        return refused(Localise(u"The number must not be below %1."_s)
                           .arg(withUnit(rule.minimum, rule, locale)));
    if (number > rule.maximum)
        return refused(Localise(u"The number must not be above %1."_s)
                           .arg(withUnit(rule.maximum, rule, locale)));
    return taken(digits);
}

CellAnswer checkedNumber(const CellRule &rule, const QString &typed, const QLocale &locale)
{
    if (const std::optional<QString> word = choiceOf(rule.choices, typed))
        return taken(*word);
    const std::optional<QString> digits = digitsOf(withoutUnit(typed, rule.unit), locale);
    return digits ? checkedRange(rule, *digits, locale)
                  : refused(Localise(u"This is not a number."_s));
}

CellAnswer checkedChoice(const CellRule &rule, const QString &typed)
{
    const QStringList choices = cellChoices(rule);
    if (const std::optional<QString> choice = choiceOf(choices, typed))
        return taken(*choice);
    if (hasOwnWords(rule) && choiceOf(yesWords() + noWords(), typed))
        return taken(choices.value(isYes(rule, typed) ? 0 : 1));
    if (rule.kind == CellRule::YesNo)
        return refused(
            Localise(u"This is neither %1 nor %2."_s).arg(choices.value(0), choices.value(1)));
    return refused(Localise(u"This is not in the list."_s));
}

CellAnswer checkedName(const CellRule &rule, const QString &typed)
{
    if (rule.choices.isEmpty())
        return taken(typed); // nobody knows the names
    const std::optional<QString> name = choiceOf(rule.choices, typed);
    return name ? taken(*name) : refused(Localise(u"There is no point of this name."_s));
}

} // namespace

CellAnswer checkedCell(const CellRule &rule, QString typed, const QLocale &locale)
{
    if (rule.kind == CellRule::NotEdited)
        return refused(rule.hint.isEmpty() ? Localise(u"This cell cannot be edited."_s)
                                           : rule.hint);
    QString text = rule.kind == CellRule::Text ? std::move(typed) : typed.trimmed();
    if (!rule.canBeEmpty && text.trimmed().isEmpty())
        return refused(Localise(u"This cell must not be empty."_s));
    if (text.isEmpty())
        return taken(std::move(text));
    switch (rule.kind) {
    case CellRule::Text:
        return checkedText(rule, std::move(text));
    case CellRule::Number:
        return checkedNumber(rule, text, locale);
    case CellRule::PointName:
        return checkedName(rule, text);
    case CellRule::Choice:
    case CellRule::YesNo:
    case CellRule::NotEdited:
        break;
    }
    return checkedChoice(rule, text);
}

QStringList cellChoices(const CellRule &rule)
{
    if (hasOwnWords(rule))
        return {Localise(u"Yes"_s), Localise(u"No"_s)};
    return rule.kind == CellRule::Text ? QStringList() : rule.choices;
}

bool isYes(const CellRule &rule, const QString &text)
{
    const QString word = text.trimmed();
    return choiceOf(hasOwnWords(rule) ? yesWords() : cellChoices(rule).mid(0, 1), word).has_value();
}

QString steppedNumber(const CellRule &rule, const QString &text, int steps, const QLocale &locale)
{
    const QString digits =
        digitsOf(withoutUnit(text.trimmed(), rule.unit), locale).value_or(u"0"_s);
    const double wanted = digits.toDouble() + steps;
    const double stepped = std::clamp(wanted, rule.minimum, std::max(rule.minimum, rule.maximum));
    const QString number =
        stepped == wanted
            ? QString::number(stepped, 'f', std::min(writtenDecimals(digits), mostDecimals))
            : QString::number(stepped, 'g', mostDecimals);
    return digitsOf(number, QLocale::c()).value_or(number);
}

} // namespace ORVTListview
