// Each switch of the menu switches what its caption says, in all programs.

#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/EditorViewMenu.h"

#include <ORVTListview/CodeView.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class EditorViewMenuTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachSwitchIsItsPropertys_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QByteArray>("property");
        const std::pair<const char *, const char *> all[] = {
            {"Line Numbers", "lineNumbersVisible"},
            {"Current Line", "currentLineShown"},
            {"Pairs and Uses", "pairsShown"},
            {"Indent Guides", "indentGuidesShown"},
            {"Blanks", "blanksShown"},
            {"Readable Colours", "adaptsColours"},
            {"Folding", "foldingEnabled"},
            {"Live Values", "liveValuesShown"},
            {"Indent While Typing", "autoIndent"},
            {"Smart Home", "smartHome"},
            {"Drop Blanks at Line Ends", "trimsBlanks"},
            {"Word List While Typing", "wordListOpensItself"},
        };
        for (const auto &[caption, property] : all)
            QTest::newRow(caption) << QString::fromLatin1(caption) << QByteArray(property);
    }
    void eachSwitchIsItsPropertys()
    {
        QFETCH(const QString, caption);
        QFETCH(const QByteArray, property);
        TwoPrograms two;
        QAction *found = nullptr;
        for (QAction *action : two.window.findChild<EditorViewMenu *>()->actions()) {
            if (action->text().remove(u'&') == caption)
                found = action;
        }
        QVERIFY(found);
        QVERIFY(found->isCheckable());
        for (int i = 0; i < 2; ++i) {
            found->trigger();
            for (const qint32 program : {1, 2}) {
                const CodeView &view = *two.programs().view(program).codeView();
                QCOMPARE(view.property(property.constData()).toBool(), found->isChecked());
            }
        }
    }
};

ORVT_TEST(EditorViewMenuTest)
#include "EditorViewMenuTest.moc"
