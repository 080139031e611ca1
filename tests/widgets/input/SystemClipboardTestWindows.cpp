#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/DataObject.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <cstring>

#include <windows.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const wchar_t *const richText = L"Rich Text Format";

// What another program finds, with what lies behind its end.
QByteArray taken(UINT format)
{
    QByteArray bytes;
    if (!OpenClipboard(nullptr))
        return bytes;
    if (HANDLE handle = GetClipboardData(format)) {
        bytes = QByteArray(static_cast<const char *>(GlobalLock(handle)),
                           static_cast<qsizetype>(GlobalSize(handle)));
        GlobalUnlock(handle);
    }
    CloseClipboard();
    return bytes;
}

// As another program does it.
bool offer(UINT format, const QByteArray &bytes)
{
    HANDLE handle = GlobalAlloc(GMEM_MOVEABLE, static_cast<SIZE_T>(bytes.size()));
    std::memcpy(GlobalLock(handle), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    GlobalUnlock(handle);
    if (!OpenClipboard(nullptr))
        return false;
    EmptyClipboard();
    const bool isTaken = SetClipboardData(format, handle) != nullptr;
    CloseClipboard();
    return isTaken;
}

QByteArray wide(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), (text.size() + 1) * 2};
}

QString narrow(const QByteArray &bytes)
{
    return QString::fromWCharArray(reinterpret_cast<const wchar_t *>(bytes.constData()));
}

} // namespace

// What other programs of the system see of ours, and ours of theirs.
class SystemClipboardTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void richTextHasTheNameThatOthersLookFor()
    {
        auto data = std::make_unique<QMimeData>();
        DataObject(data.get(), DataObject::Side::Source)
            .SetData(u"{\\rtf1 x}"_s, DataObject::RichText);
        QGuiApplication::clipboard()->setMimeData(data.release());
        QVERIFY(taken(RegisterClipboardFormatW(richText)).startsWith("{\\rtf1 x}"));
    }

    void richTextOfOthersIsRead()
    {
        QVERIFY(offer(RegisterClipboardFormatW(richText), QByteArray("{\\rtf1 y}\0\0\0", 13)));
        QMimeData *data = const_cast<QMimeData *>(QGuiApplication::clipboard()->mimeData());
        const DataObject object(data, DataObject::Side::Target);
        QVERIFY(object.GetFormat(DataObject::RichText));
        QCOMPARE(object.GetData(DataObject::RichText).toString(), u"{\\rtf1 y}"_s);
    }

    void hypertextHasTheNameThatOthersLookFor()
    {
        auto data = std::make_unique<QMimeData>();
        data->setHtml(u"<b>Fan</b>"_s);
        QGuiApplication::clipboard()->setMimeData(data.release());
        const QByteArray found = taken(RegisterClipboardFormatW(L"HTML Format"));
        QVERIFY(found.contains("<!--StartFragment--><b>Fan</b><!--EndFragment-->"));
        QVERIFY(offer(RegisterClipboardFormatW(L"HTML Format"), found));
        QVERIFY(QGuiApplication::clipboard()->mimeData()->html().contains(u"<b>Fan</b>"_s));
    }

    void linesEndAsTheSystemsDo()
    {
        RichTextBox box;
        box.setText(u"one\r\ntwo"_s);
        QTest::keySequence(&box, QKeySequence::SelectAll);
        QTest::keySequence(&box, QKeySequence::Copy);
        QCOMPARE(narrow(taken(CF_UNICODETEXT)), u"one\r\ntwo"_s);
        QVERIFY(offer(CF_UNICODETEXT, wide(u"three\r\nfour \u20ac\r\n"_s)));
        QTest::keySequence(&box, QKeySequence::SelectAll);
        QTest::keySequence(&box, QKeySequence::Paste);
        QCOMPARE(box.Text(), u"three\r\nfour \u20ac\r\n"_s);
    }
};

ORVT_TEST(SystemClipboardTest)
#include "SystemClipboardTestWindows.moc"
