// What nobody touched is saved byte for byte as it came, whatever was done around it.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QDir>

using namespace Qt::StringLiterals;

class UntouchedTest : public WidgetTest
{
    Q_OBJECT

private:
    static inline const QByteArray program = "\xEF\xBB\xBF"
                                             "y=LIMIT(a,0,100)\r\n"
                                             "A\tB  \n"
                                             "\tif temp1>( 3)\r"
                                             "rem caf\xC3\xA9 \x09\r\n"
                                             "fan1 = on";

    static QByteArray withFirstLine(const QByteArray &line)
    {
        return "\xEF\xBB\xBF" + line + program.sliced(program.indexOf("\r\n"));
    }

private Q_SLOTS:
    void savingWithoutAChangeWritesNothing()
    {
        WorkbenchWindow workbench(program);
        QVERIFY(!workbench.window.isWindowModified());
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), program);
        QCOMPARE(QDir(workbench.folder.path()).entryList({u"*~"_s}), QStringList());
    }

    void goingThroughAndBackChangesNothing()
    {
        WorkbenchWindow workbench(program);
        for (int line = 0; line < 5; ++line)
            workbench.key(Qt::Key_Down);
        workbench.type(u"x "_s);
        workbench.key(Qt::Key_Backspace);
        workbench.key(Qt::Key_Backspace);
        workbench.key(Qt::Key_Up);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), program);
    }

    void undoTouchesNoOtherLine()
    {
        WorkbenchWindow workbench(program);
        workbench.type(u"x y "_s);
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!workbench.window.isWindowModified());
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), program);
        workbench.key(Qt::Key_Y, Qt::ControlModifier);
        workbench.choose(u"Save"_s);
        QVERIFY2(workbench.saved().endsWith(program.sliced(program.indexOf("\r\n"))),
                 workbench.saved().constData());
    }

    void anotherPaletteTouchesNothing()
    {
        WorkbenchWindow workbench(program);
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Base, Qt::black);
        palette.setColor(QPalette::Text, Qt::white);
        workbench.window.setPalette(palette);
        QVERIFY(!workbench.window.isWindowModified());
        workbench.key(Qt::Key_Delete);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), withFirstLine("=LIMIT(a,0,100)"));
    }

    void tidyIsSaved()
    {
        WorkbenchWindow workbench(program);
        workbench.code().codeView()->tidy();
        QVERIFY(workbench.window.isWindowModified());
        workbench.choose(u"Save"_s);
        QVERIFY2(workbench.saved().contains("y=LIMIT(a,0,100 )\r\nA B\n"),
                 workbench.saved().constData());
        workbench.key(Qt::Key_Z, Qt::ControlModifier);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved().count('\t'), program.count('\t'));
    }

    void anotherEncodingStays()
    {
        WorkbenchWindow workbench("rem caf\xE9\nfan1 = on\n");
        QCOMPARE(workbench.code().CodeText(), u"rem café\r\nFan1 = ON\r\n"_s);
        workbench.key(Qt::Key_Down);
        QString letter = u"ä"_s;
        workbench.code().RTextPaste(letter);
        workbench.choose(u"Save"_s);
        QCOMPARE(workbench.saved(), "rem caf\xE9\n\xE4"
                                    "Fan1 = ON\n");
    }

    void whatTheEncodingLacksIsAskedFor()
    {
        WorkbenchWindow workbench("rem caf\xE9\n");
        QString omega = u"Ω"_s;
        workbench.code().RTextPaste(omega);
        QString text;
        NextDialog<QMessageBox> keep([&](QMessageBox &box) {
            text = box.text();
            box.button(QMessageBox::Cancel)->click();
        });
        workbench.choose(u"Save"_s);
        QVERIFY(keep.wasThere());
        QVERIFY2(text.contains(u"Ω"_s), qPrintable(text));
        QCOMPARE(workbench.saved(), "rem caf\xE9\n");
        NextDialog<QMessageBox> convert([](QMessageBox &box) {
            for (QAbstractButton *button : box.buttons()) {
                if (button->text().contains(u"UTF"_s))
                    button->click();
            }
        });
        workbench.choose(u"Save"_s);
        QVERIFY(convert.wasThere());
        QCOMPARE(workbench.saved(), "\xCE\xA9"
                                    "rem caf\xC3\xA9\n");
    }
};

ORVT_TEST(UntouchedTest)
#include "UntouchedTest.moc"
