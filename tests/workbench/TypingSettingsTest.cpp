// What the settings say of typing holds in all programs, and is what the menu shows.

#include "TwoPrograms.h"

#include "support/TestProgram.h"
#include "workbench/EditorViewMenu.h"
#include "workbench/settings/SettingsDialog.h"

#include <ORVTListview/CodeView.h>

#include <QtWidgets/QCheckBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class TypingSettingsTest : public WidgetTest
{
    Q_OBJECT

private:
    static TypingHelps helpsOf(TwoPrograms &two, qint32 program)
    {
        return TypingHelps::of(*two.programs().view(program).codeView());
    }

    static QCheckBox &boxOf(const QWidget &dialog, const QString &text)
    {
        for (QCheckBox *box : dialog.findChildren<QCheckBox *>()) {
            if (box->text() == text)
                return *box;
        }
        qFatal("there is no %s", qPrintable(text));
    }

    static QAction &switchOf(const TwoPrograms &two, const QString &caption)
    {
        for (QAction *action : two.window.findChild<EditorViewMenu *>()->actions()) {
            if (action->text().remove(u'&') == caption)
                return *action;
        }
        qFatal("there is no %s", qPrintable(caption));
    }

    // Opens the settings by their menu and clicks on one.
    static void click(TwoPrograms &two, const QString &text, QDialog::DialogCode end)
    {
        NextDialog<SettingsDialog> dialog([&](SettingsDialog &settings) {
            boxOf(settings, text).click();
            settings.done(end);
        });
        two.choose(u"Settings…"_s);
        QVERIFY(dialog.wasThere());
    }

private Q_SLOTS:
    void eachHoldsInAllPrograms_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("command");
        QTest::addColumn<TypingHelps>("without");
        QTest::newRow("indent") << u"&Indent after IF and ELSE"_s << u"Indent While Typing"_s
                                << TypingHelps{.indents = false};
        QTest::newRow("home") << u"&Home goes to the first word"_s << u"Smart Home"_s
                              << TypingHelps{.hasSmartHome = false};
        QTest::newRow("blanks") << u"Drop &blanks at line ends"_s << u"Drop Blanks at Line Ends"_s
                                << TypingHelps{.dropsBlanks = false};
        QTest::newRow("words") << u"The &word list opens by itself"_s << u"Word List While Typing"_s
                               << TypingHelps{.listsWords = false};
    }

    void eachHoldsInAllPrograms()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, command);
        QFETCH(const TypingHelps, without);
        TwoPrograms two;
        for (const TypingHelps &expected : {without, TypingHelps()}) {
            click(two, text, QDialog::Accepted);
            QVERIFY(helpsOf(two, 1) == expected);
            QVERIFY(helpsOf(two, 2) == expected);
            QCOMPARE(switchOf(two, command).isChecked(), expected == TypingHelps());
        }
    }

    void whatTheMenuSwitchedIsShown()
    {
        TwoPrograms two;
        switchOf(two, u"Smart Home"_s).trigger();
        click(two, u"&Home goes to the first word"_s, QDialog::Accepted);
        QVERIFY(helpsOf(two, 1) == TypingHelps());
    }

    void cancelChangesNothing()
    {
        TwoPrograms two;
        click(two, u"&Home goes to the first word"_s, QDialog::Rejected);
        QVERIFY(helpsOf(two, 1) == TypingHelps());
    }

    void aFurtherProgramHasThem()
    {
        TwoPrograms two;
        click(two, u"&Home goes to the first word"_s, QDialog::Accepted);
        two.give(u"Add Program…"_s, u"C"_s);
        QVERIFY(helpsOf(two, 3) == TypingHelps{.hasSmartHome = false});
    }
};

ORVT_TEST(TypingSettingsTest)
#include "TypingSettingsTest.moc"
