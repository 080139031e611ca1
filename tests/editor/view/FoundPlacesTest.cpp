// The places of a text are known whatever is edited, and only what changed is read again.

#include "editor/view/FoundPlaces.h"

#include "base/TextRules.h"
#include "find/rules/ProgramSearch.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/RichTextBox.h>

#include <QtTest/QSignalSpy>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class FoundPlacesTest : public WidgetTest
{
    Q_OBJECT

private:
    static QList<int> allOf(const RichTextBox &box, const FoundPlaces &places)
    {
        QList<int> all;
        for (QTextBlock line = box.document()->firstBlock(); line.isValid(); line = line.next())
            all += places.on(line);
        return all;
    }

    // The same by one search through the text.
    static qsizetype counted(const QString &text, const QString &wanted)
    {
        qsizetype number = 0;
        for (qsizetype place = findInProgram(text, wanted, 0, {}); place >= 0;
             place = findInProgram(text, wanted, place + wanted.size(), {}))
            ++number;
        return number;
    }

    static void changeAtRandom(RichTextBox &box, std::mt19937 &random)
    {
        const auto number = [&](int below) { return static_cast<int>(random() % below); };
        const int end = box.document()->characterCount();
        QTextCursor cursor(box.document());
        cursor.setPosition(number(end));
        switch (number(5)) {
        case 0:
            cursor.insertText(u"ab"_s);
            break;
        case 1:
            cursor.insertText(u"x ab\nab ab\n\nab"_s.repeated(1 + number(400)));
            break;
        case 2:
            cursor.setPosition(number(end), QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            break;
        case 3:
            cursor.deleteChar();
            break;
        default:
            if (number(10) == 0)
                box.setText(u"ab\r\n"_s.repeated(number(3000)));
            else
                cursor.insertBlock();
        }
    }

private Q_SLOTS:
    void areRightWhateverIsEdited()
    {
        std::mt19937 random(randomSeed());
        RichTextBox box;
        box.setText(u"ab x ab\r\nb\r\n"_s.repeated(3000));
        FoundPlaces places(*box.document());
        for (const QString &wanted : {u"ab"_s, u"b\r\na"_s}) {
            places.look(wanted, {}, 0);
            for (int step = 0; step < randomSteps(60); ++step) {
                changeAtRandom(box, random);
                if (random() % 3 == 0)
                    continue;
                QTRY_VERIFY(places.isCounted());
                const QList<int> all = allOf(box, places);
                QCOMPARE(places.count(), all.size());
                QCOMPARE(places.count(), counted(box.Text(), wanted));
                for (qsizetype i = 0; i < all.size(); i += 97)
                    QCOMPARE(places.numberOf(all[i]), std::optional(i + 1));
                if (!all.isEmpty())
                    QCOMPARE(places.firstFrom(all.last() + 1), std::optional(all.first()));
                QVERIFY(places.lines(50).size() <= 50);
            }
        }
    }

    void onlyWhatChangedIsReadAgain()
    {
        RichTextBox box;
        box.setText(u"ab\r\n"_s.repeated(60'000));
        FoundPlaces places(*box.document());
        places.look(u"ab"_s, {}, 0);
        QVERIFY(!places.isCounted());
        QTRY_VERIFY(places.isCounted());
        QSignalSpy portions(&places, &FoundPlaces::changed);
        QTextCursor cursor(box.document());
        cursor.setPosition(90'000);
        cursor.insertText(u"ab\nab"_s);
        QVERIFY(!places.isCounted());
        QTRY_VERIFY(places.isCounted());
        QCOMPARE(portions.count(), 1);
        QCOMPARE(places.count(), 60'002);
    }

    void nothingIsReadBeforeAndAfter()
    {
        RichTextBox box;
        FoundPlaces places(*box.document());
        QSignalSpy portions(&places, &FoundPlaces::changed);
        box.setText(u"ab"_s);
        places.look(u"ab"_s, {}, 0);
        QCOMPARE(places.count(), 1);
        places.look({}, {}, 0);
        portions.clear();
        box.setText(u"ab ab"_s);
        QTest::qWait(1);
        QCOMPARE(portions.count(), 0);
        QCOMPARE(places.count(), 0);
    }
};

ORVT_TEST(FoundPlacesTest)
#include "FoundPlacesTest.moc"
