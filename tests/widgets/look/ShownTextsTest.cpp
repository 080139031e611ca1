// The tools with which tests of components find texts that were not looked up.

#include "support/ShownTexts.h"
#include "shared/texts/TextTable.h"
#include "support/PseudoTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTreeWidget>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ShownTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindOfTextIsFound()
    {
        QWidget form;
        form.setWindowTitle(u"title"_s);
        QLabel label(u"label"_s, &form);
        label.setAccessibleName(u"name"_s);
        QCheckBox box(u"check"_s, &form);
        box.setToolTip(u"tip"_s);
        QGroupBox group(u"group"_s, &form);
        QTreeWidget table(&form);
        table.setHeaderLabels({u"column"_s});
        QMenu menu(u"menu"_s, &form);
        menu.addAction(u"command"_s);
        QCOMPARE(shownTexts(form),
                 QStringList({u"check"_s, u"column"_s, u"command"_s, u"group"_s, u"label"_s,
                              u"menu"_s, u"name"_s, u"tip"_s, u"title"_s}));
    }

    void onlyWordsOutsideTheBracketsAreReported()
    {
        PseudoTexts pseudo;
        setTextProvider(&pseudo);
        QWidget form;
        QLabel good(Localise(u"Found in"_s) + u" 3"_s + Localise(u", Col:"_s), &form);
        QLabel keyed(u"\u27e6&Close\u27e7"_s, &form);
        QLabel sign(u"V"_s, &form);
        QCOMPARE(shownWithoutLookup(form), QStringList());

        QLabel unknown(Localise(u"Unknown text"_s), &form);
        QLabel partly(Localise(u"Row:"_s) + u" three"_s, &form);
        QCOMPARE(
            shownWithoutLookup(form),
            QStringList({u"Unknown text"_s, PseudoTexts::inBrackets(u"Row:"_s) + u" three"_s}));
    }
};

ORVT_TEST(ShownTextsTest)
#include "ShownTextsTest.moc"
