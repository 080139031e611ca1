#pragma once

#include "editor/EditorThread.h"
#include "editor/OpeningHost.h"
#include "editor/rules/colouring/ColourText.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>

// Counts what the document is told to have changed.
struct SteppingHost : OpeningHost
{
    SteppingHost()
    {
        QObject::connect(box().document(), &QTextDocument::contentsChange, &form,
                         [this](int, int removed, int added) { touched += removed + added; });
    }

    void typeAt(int line, const QString &text)
    {
        box().setSelStart(box().lineStart(line));
        type(text);
    }
    void undo()
    {
        touched = 0;
        key(Qt::Key_Z, Qt::ControlModifier);
    }
    void redo()
    {
        touched = 0;
        key(Qt::Key_Y, Qt::ControlModifier);
    }
    void replaceAll(const QString &words, const QString &text)
    {
        view().showFindBar();
        QTest::keyClicks(list->findChild<QComboBox *>(QStringLiteral("FindBarWanted")), words);
        const auto click = [this](const QString &name) {
            QTest::mouseClick(list->findChild<QAbstractButton *>(name), Qt::LeftButton);
        };
        click(QStringLiteral("FindBarMore"));
        QTest::keyClicks(list->findChild<QComboBox *>(QStringLiteral("FindBarReplacement")), text);
        click(QStringLiteral("FindBarReplaceAll"));
        box().setFocus();
    }
    bool hasTouchedFew() const { return touched > 0 && touched < 500; }

    // With the same words and colours.
    void compareWithOpenedAnew()
    {
        finish();
        ORVTListview::ORVListView other;
        other.setListviewType(ORVTListview::dsCode);
        other.openProgram(list->CodeText());
        comparePictures(pictureOf(box()), pictureOf(*other.RTextBox()));
    }

    // What the text that the ring is at looks like, set as a whole.
    void compareWithTheRing()
    {
        colours().giveAll();
        const QString text =
            ORVTListview::splitUndoRecord(ring().FetchUndoSnapshot(ring().UndoCurrent())).text;
        const ORVTListview::EditorThread thread = ORVTListview::EditorThread::current();
        ORVTListview::RichTextBox other;
        other.setColoured(
            ORVTListview::colouredText(thread.colouring(), text, false, thread.settings()));
        QCOMPARE(list->CodeText(), other.Text());
        comparePictures(pictureOf(box()), pictureOf(other));
    }

    // As it takes to get ready for a step.
    void rest() { QTest::qWait(900); }

    int touched = 0;
};

struct KeepingHost : SteppingHost
{
    KeepingHost() { view().setKeepsText(true); }
};

// Brackets that are not set off, and blanks in the colours of the lines before.
inline QString colouredProgram()
{
    QStringList lines = longProgram()
                            .replace(QStringLiteral(")\t"), QStringLiteral(") "))
                            .split(QStringLiteral("\r\n"));
    for (qsizetype i = 0; i + 1 < lines.size(); i += 10) {
        lines[i] = QStringLiteral("if (temp1>limit1 ) and (fan1) and (limit1) and ((temp1))");
        lines[i + 1] = i % 20 == 0 ? QStringLiteral(" \t ") : QStringLiteral("");
    }
    return lines.join(QStringLiteral("\r\n"));
}
