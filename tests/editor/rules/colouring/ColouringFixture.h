#pragma once

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/RtfHead.h"
#include "editor/rules/language/Vocabulary.h"
#include "support/QtPrinters.h"
#include "support/RecordedMessages.h"

// A vocabulary with one or two names of each class, and the engine on it.
struct Colouring
{
    Colouring()
    {
        constants.Add(QStringLiteral("Limit1"));
        variables.Add(QStringLiteral("Var1"));
        inputs.Add(QStringLiteral("Temp1"));
        outputs.Add(QStringLiteral("Fan1"));
        nvis.Add(QStringLiteral("NetTemp"));
        vocabulary.setCollections({&variables, &constants, &inputs, &outputs, &nvis});
        refill();
    }

    void refill() { words.FillCodeWordList(vocabulary); }
    ORVTListview::ColourEngine engine() { return {words, messages}; }

    QString text(const QString &text, bool firstLineIsComment = false)
    {
        return ORVTListview::ColourText(engine(), text, QString(), firstLineIsComment);
    }
    QString line(const QString &line) { return ORVTListview::ColourLine(engine(), line); }
    QString token(const QString &token) { return ORVTListview::ColourToken(engine(), token); }

    RecordedMessages messages;
    ORVTListview::PointList constants;
    ORVTListview::PointList variables;
    ORVTListview::PointList inputs;
    ORVTListview::PointList outputs;
    ORVTListview::PointList nvis;
    ORVTListview::IndexedNameList indexed;
    ORVTListview::Vocabulary vocabulary;
    ORVTListview::CodeWordList words;
};
