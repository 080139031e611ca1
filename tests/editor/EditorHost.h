#pragma once

#include "base/ColouredText.h"
#include "base/ThreadState.h"
#include "editor/AllOfTheView.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/undo/UndoStore.h"
#include <ORVTListview/ReportList.h>

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <functional>

// A form with a code editor between two other controls, shown and focused.
struct EditorHost
{
    EditorHost()
    {
        using namespace ORVTListview;
        inputs.Add(QStringLiteral("Temp1"));
        inputs.Add(QStringLiteral("Temp2"));
        outputs.Add(QStringLiteral("Fan1"));
        constants.Add(QStringLiteral("Limit1"));
        variables.Add(QStringLiteral("Var1"));
        nvis.Add(QStringLiteral("NetTemp"));
        tree.SetCollectionRenamable(nullptr, &variables, &constants, &inputs, &outputs, &nvis);

        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(before = new QLineEdit);
        layout->addWidget(list = new ORVListView);
        layout->addWidget(after = new QLineEdit);
        list->setMinimumSize(500, 300);
        list->setListviewType(dsCode);
        settings.FontName = QStringLiteral("DejaVu Sans Mono");
        settings.FontSize = 10;
        list->Init_RichTextBox(settings);
        if (hasAllOfTheView())
            switchAllOn();
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        box().setFocus();
        QVERIFY(box().hasFocus());
    }

    // Whether all that the editor can show and do beside its text is on, and whether the
    // list that opens by itself is among that.
    static bool hasAllOfTheView() { return qEnvironmentVariableIsSet("ORVT_CODE_VIEW"); }
    static bool hasOpeningList() { return qgetenv("ORVT_CODE_VIEW") == "all"; }

    ORVTListview::RichTextBox &box() { return *list->RTextBox(); }
    ORVTListview::UndoStore &ring() { return ORVTListview::threadPart<ORVTListview::UndoStore>(); }
    ORVTListview::ReportList &wordList()
    {
        return *list->findChild<ORVTListview::ReportList *>(QStringLiteral("ListView1"));
    }

    // "|" in the text stands for the caret; two of them for a selection.
    void setText(QString text)
    {
        const auto start = static_cast<qint32>(text.indexOf(u'|'));
        text.remove(start, start < 0 ? 0 : 1);
        const auto end = static_cast<qint32>(text.indexOf(u'|'));
        text.remove(end, end < 0 ? 0 : 1);
        list->setCodeText(text);
        if (hasAllOfTheView())
            markLines();
        box().setSelStart(std::max(start, 0));
        if (end >= 0)
            box().setSelLength(end - start);
    }
    QString marked()
    {
        QString text = box().Text();
        const qint32 start = box().SelStart();
        const qint32 length = box().SelLength();
        if (length > 0)
            text.insert(start + length, u'|');
        return text.insert(start, u'|');
    }

    void switchAllOn()
    {
        ORVTListview::CodeView &view = *list->codeView();
        switchView(view, true, {"keepsText", "hasOwnUndo"});
        view.setWordListOpensItself(hasOpeningList());
        view.setZoom(100);
        view.setLiveValues({{QStringLiteral("Temp1"), QStringLiteral("19.4 °C")},
                            {QStringLiteral("Fan1"), QStringLiteral("On")}});
    }

    // A problem on each line, and a bookmark on that of the caret.
    void markLines()
    {
        QList<ORVTListview::Problem> problems;
        for (qint32 line = 1; line <= box().lineCount(); ++line) {
            ORVTListview::Problem problem;
            problem.line = line;
            problem.text = QStringLiteral("To be looked at");
            problems.append(problem);
        }
        list->codeView()->setProblems(problems);
        list->codeView()->toggleBookmark();
    }

    void type(const QString &text)
    {
        for (const QChar c : text) {
            if (c == u'\n')
                key(Qt::Key_Return);
            else
                QTest::keyClick(&box(), c.toLatin1());
        }
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&box(), static_cast<Qt::Key>(key), modifiers);
    }

    // The colour of the character at a position, -1 for none of its own.
    qint32 colourAt(qint32 position) { return box().coloured(position, 1).runs.value(0).colour; }
    qint32 colourOf(const QString &word)
    {
        return colourAt(static_cast<qint32>(box().Text().indexOf(word)));
    }

    ORVTListview::PointList inputs, outputs, constants, variables, nvis;
    ORVTListview::RichTextSettings settings = ORVTListview::defaultColours();
    ORVTListview::ORVTreeview tree;
    QWidget form;
    QLineEdit *before = nullptr;
    QLineEdit *after = nullptr;
    ORVTListview::ORVListView *list = nullptr;
};

// What is done to an editor, in a row of test data.
using EditorAct = std::function<void(EditorHost &)>;
Q_DECLARE_METATYPE(EditorAct)
