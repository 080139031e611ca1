#include "editor/rules/syntax_definition.h"

#include "support/points.h"

#include "editor/rules/language/WordClass.h"

#include <QtCore/QStringList>

#include <array>

namespace ORVTListview::bench {

using namespace Qt::StringLiterals;

namespace {

struct WordList
{
    qint32 colour;
    QLatin1StringView format;
    QLatin1StringView style;
};

constexpr std::array<WordList, 6> wordLists{{
    {ReservedWordColour, "Reserved word"_L1, "dsKeyword"_L1},
    {ConstantColour, "Constant"_L1, "dsConstant"_L1},
    {InputColour, "Input"_L1, "dsImport"_L1},
    {OutputColour, "Output"_L1, "dsFunction"_L1},
    {VariableColour, "Variable"_L1, "dsVariable"_L1},
    {NviColour, "Nvi"_L1, "dsExtension"_L1},
}};

constexpr auto definition = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE language>
<language name="Controller program" section="Sources" version="1" kateversion="5.79"
          extensions="*.prog" casesensitive="0">
  <highlighting>
%1    <contexts>
      <context name="Normal" attribute="Normal" lineEndContext="#stay">
        <DetectSpaces/>
        <WordDetect attribute="Comment" context="Comment" String="REM"
                    insensitive="true" firstNonSpace="true"/>
%2        <Float attribute="Number"/>
        <Int attribute="Number"/>
        <AnyChar attribute="Operator" String="&lt;&gt;=!+-*/"/>
        <DetectIdentifier/>
      </context>
      <context name="Comment" attribute="Comment" lineEndContext="#pop"/>
    </contexts>
    <itemDatas>
      <itemData name="Normal" defStyleNum="dsNormal"/>
      <itemData name="Comment" defStyleNum="dsComment"/>
      <itemData name="Number" defStyleNum="dsDecVal"/>
      <itemData name="Operator" defStyleNum="dsOperator"/>
%3    </itemDatas>
  </highlighting>
  <general><keywords casesensitive="0"/></general>
</language>
)"_L1;

bool isWord(const QString &word)
{
    return word.front().isLetter();
}

} // namespace

QString syntaxDefinition()
{
    QString lists;
    QString rules;
    QString styles;
    for (const WordList &list : wordLists) {
        lists += u"    <list name=\"%1\">\n"_s.arg(list.format);
        for (const QString &word : wordsOf(list.colour)) {
            if (isWord(word))
                lists += u"      <item>%1</item>\n"_s.arg(word);
        }
        lists += u"    </list>\n"_s;
        rules += u"        <keyword attribute=\"%1\" String=\"%1\"/>\n"_s.arg(list.format);
        styles +=
            u"      <itemData name=\"%1\" defStyleNum=\"%2\"/>\n"_s.arg(list.format, list.style);
    }
    return QString(definition).arg(lists, rules, styles);
}

} // namespace ORVTListview::bench
