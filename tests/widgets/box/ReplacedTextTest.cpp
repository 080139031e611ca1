// The signals that a box inherits, when its whole text is replaced: who hears of it finds
// the text that was put in, and may do anything.

#include "base/ColouredText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>

#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

using Act = std::function<void(RichTextBox &)>;

namespace {

const QString put = u"new\r\ntext\r\nhere"_s;

struct WaysIn
{
    static void add()
    {
        QTest::addColumn<Act>("putIn");
        QTest::newRow("text") << Act([](RichTextBox &box) { box.setText(put); });
        QTest::newRow("RTF") << Act(
            [](RichTextBox &box) { box.setTextRTF(u"{\\rtf1 new\\par text\\par here}"_s); });
        QTest::newRow("colours") << Act([](RichTextBox &box) {
            box.setColoured(ColouredText{put, {{3, 255}}});
        });
        QTest::newRow("parts") << Act([](RichTextBox &box) {
            box.setColoured([part = 0]() mutable -> std::optional<ColouredText> {
                const QStringList lines = put.split(u"\r\n"_s);
                return part < lines.size() ? std::optional(ColouredText{lines[part++], {}})
                                           : std::nullopt;
            });
        });
    }
};

// All that tells of another text.
void hearAll(RichTextBox &box, const std::function<void()> &hear)
{
    QObject::connect(&box, &QPlainTextEdit::textChanged, &box, hear);
    QObject::connect(&box, &QPlainTextEdit::blockCountChanged, &box, hear);
    QObject::connect(&box, &QPlainTextEdit::cursorPositionChanged, &box, hear);
    QObject::connect(&box, &QPlainTextEdit::selectionChanged, &box, hear);
    QObject::connect(&box, &QPlainTextEdit::copyAvailable, &box, hear);
    QObject::connect(&box, &QPlainTextEdit::updateRequest, &box, hear);
}

} // namespace

class ReplacedTextTest : public WidgetTest
{
    Q_OBJECT

    static void fill(RichTextBox &box)
    {
        box.setText(u"old\r\nlines"_s);
        box.selectAll();
    }

private Q_SLOTS:
    void allFindTheNewText_data() { WaysIn::add(); }
    void allFindTheNewText()
    {
        QFETCH(const Act, putIn);
        RichTextBox box;
        fill(box);
        QStringList seen;
        hearAll(box, [&] { seen.append(box.Text()); });
        putIn(box);
        QVERIFY(seen.size() >= 6);
        QCOMPARE(seen, QStringList(seen.size(), put));
    }

    void eachComesOnce()
    {
        RichTextBox box;
        fill(box);
        QString heard;
        connect(&box, &QPlainTextEdit::blockCountChanged, &box,
                [&](int lines) { heard += u"lines %1 "_s.arg(lines); });
        connect(&box, &QPlainTextEdit::textChanged, &box, [&] { heard += u"text "; });
        connect(&box, &QPlainTextEdit::copyAvailable, &box,
                [&](bool is) { heard += is ? u"copy " : u"no copy "; });
        connect(&box, &RichTextBox::Change, &box, [&] { heard += u"Change "; });
        box.setText(put);
        QCOMPARE(heard, u"lines 3 text no copy Change "_s);
        heard.clear();
        box.setText({});
        QCOMPARE(heard, u"lines 1 text Change "_s);
    }

    void aReceiverMayPutInAnotherText_data() { WaysIn::add(); }
    void aReceiverMayPutInAnotherText()
    {
        QFETCH(const Act, putIn);
        for (const bool isOfDocument : {false, true}) {
            RichTextBox box;
            fill(box);
            const auto meddle = [&box, isFirst = true]() mutable {
                if (!box.document()->isEmpty() && std::exchange(isFirst, false))
                    box.setText(u"of the host"_s);
            };
            if (isOfDocument)
                connect(box.document(), &QTextDocument::contentsChanged, &box, meddle);
            else
                connect(&box, &QPlainTextEdit::textChanged, &box, meddle);
            putIn(box);
            QCOMPARE(box.Text(), u"of the host"_s);
            QCOMPARE(box.document()->toRawText(), u"of the host"_s);
        }
    }

    // The one that is put in after it stays.
    void aReceiverOfTheDocumentMayFillWhatIsCleared_data() { WaysIn::add(); }
    void aReceiverOfTheDocumentMayFillWhatIsCleared()
    {
        QFETCH(const Act, putIn);
        RichTextBox box;
        fill(box);
        connect(box.document(), &QTextDocument::contentsChanged, &box,
                [&box, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        box.setText(u"of the host"_s);
                });
        putIn(box);
        QCOMPARE(box.Text(), put);
        QCOMPARE(box.document()->toRawText(), QString(put).replace(u"\r\n"_s, QChar(0x2029)));
    }

    void aReceiverMayDestroyTheBoxOrThrow_data() { WaysIn::add(); }
    void aReceiverMayDestroyTheBoxOrThrow()
    {
        QFETCH(const Act, putIn);
        for (int place = 0; place < 6; ++place) {
            QPointer<RichTextBox> box(new RichTextBox);
            fill(*box);
            int before = place;
            hearAll(*box, [&] {
                if (before-- == 0)
                    delete box.data();
            });
            putIn(*box);
            QVERIFY(!box);
        }
        RichTextBox box;
        fill(box);
        hearAll(box, [] { throw std::runtime_error("host"); });
        for (int i = 0; i < 6; ++i)
            QTest::ignoreMessage(QtWarningMsg, "An event handler failed: host");
        putIn(box);
        QCOMPARE(box.Text(), put);
    }

    // A host may have switched the document's own steps on.
    void stepsThatAreGoneAreTold_data() { WaysIn::add(); }
    void stepsThatAreGoneAreTold()
    {
        QFETCH(const Act, putIn);
        RichTextBox box;
        fill(box);
        box.document()->setUndoRedoEnabled(true);
        QTextCursor(box.document()).insertText(u"a"_s);
        QTextCursor(box.document()).insertText(u"b"_s);
        box.document()->undo();
        QVERIFY(box.document()->isRedoAvailable());
        const QSignalSpy redo(&box, &QPlainTextEdit::redoAvailable);
        putIn(box);
        QCOMPARE(redo.count(), 1);
        QCOMPARE(redo.constFirst().constFirst().toBool(), false);
    }
};

ORVT_TEST(ReplacedTextTest)
#include "ReplacedTextTest.moc"
