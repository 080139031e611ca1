// The message box that users see when no host has a message service of its own.

#include "widgets/look/MessageBoxes.h"

#include "support/TestProgram.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What a box showed.
struct Shown
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::StandardButtons buttons;
    QPointer<QWidget> owner;
    bool isModal = false;
};

// Reads and closes each box that comes.
class Reader : public QObject
{
public:
    Reader()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            boxes.append({box->icon(), box->windowTitle(), box->text(), box->textFormat(),
                          box->standardButtons(), box->parentWidget(), box->isModal()});
            box->button(QMessageBox::Ok)->click();
        });
        m_timer.start(0);
    }

    QList<Shown> boxes;

private:
    QTimer m_timer;
};

const Message warning{Message::Icon::Exclamation, u"Paste"_s, u"Invalid letter: '\\'"_s};

} // namespace

class MessageBoxesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBoxSaysWhatTheMessageSays()
    {
        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        Reader reader;
        MessageBoxes().show(warning);
        QCOMPARE(reader.boxes.size(), 1);
        const Shown &shown = reader.boxes.constFirst();
        QCOMPARE(shown.icon, QMessageBox::Warning);
        QCOMPARE(shown.title, warning.title);
        QCOMPARE(shown.text, warning.text);
        QCOMPARE(shown.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(shown.owner, &window); // stays above it
        QVERIFY(shown.isModal);
    }

    void onlyWarningsHaveTheIcon()
    {
        Reader reader;
        MessageBoxes().show({Message::Icon::None, u"Undo"_s, u"Nothing"_s});
        QCOMPARE(reader.boxes.size(), 1);
        QCOMPARE(reader.boxes.constFirst().icon, QMessageBox::NoIcon);
    }

    // A program's text is no markup.
    void textIsShownLetterByLetter()
    {
        Reader reader;
        const Message marked{Message::Icon::Exclamation, u"Find"_s, u"<b>a</b> &amp; b < c"_s};
        MessageBoxes().show(marked);
        QCOMPARE(reader.boxes.size(), 1);
        QCOMPARE(reader.boxes.constFirst().format, Qt::PlainText);
        QCOMPARE(reader.boxes.constFirst().text, marked.text);
    }

    void aMessageWithoutATitleHasTheProgramsName()
    {
        QGuiApplication::setApplicationDisplayName(u"The Host"_s);
        Reader reader;
        MessageBoxes().show({Message::Icon::Exclamation, QString(), u"Full"_s});
        QGuiApplication::setApplicationDisplayName(QString());
        QCOMPARE(reader.boxes.size(), 1);
        QCOMPARE(reader.boxes.constFirst().title, u"The Host"_s);
    }

    void aBatchShowsEachMessageOnce()
    {
        const Message other{Message::Icon::Exclamation, u"Paste"_s, u"Too long"_s};
        MessageBoxes boxes;
        Reader reader;
        {
            const MessageBatch outer(boxes);
            boxes.show(warning);
            {
                const MessageBatch inner(boxes);
                boxes.show(warning);
                boxes.show(other);
            }
            boxes.show(warning); // the inner one's end is not the batch's
            boxes.show(other);
        }
        QCOMPARE(reader.boxes.size(), 2);
        QCOMPARE(reader.boxes.at(1).text, other.text);
        boxes.show(warning);
        boxes.show(warning);
        QCOMPARE(reader.boxes.size(), 4); // after it each has a box again
    }
};

ORVT_TEST(MessageBoxesTest)
#include "MessageBoxesTest.moc"
