// What the code editor shows beside the text, part by part.

#include "editor/rules/colouring/ColourTable.h"
#include "pictures/Scenes.h"
#include "widgets/look/Pictures.h"
#include "workbench/Appearance.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/ImageList.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QDeadlineTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPalette>
#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QString heating = u"REM Heating coil of the supply air\r\n"
                        "IF SupplyTemp < SupplyMin\r\n"
                        "    HeatingPump = ON\r\n"
                        "    HeatingValve = LIMIT ( HeatingValve + 5 , 0 , 100 )\r\n"
                        "    IF HeatingValve > 90\r\n"
                        "        AlarmLamp = ON\r\n"
                        "    ENDIF\r\n"
                        "ELSE\r\n"
                        "    HeatingValve = 0\r\n"
                        "ENDIF\r\n"_s;

// An editor as a host shows it, with the names of a small project.
class CodePicture
{
public:
    explicit CodePicture(Sheet &sheet)
        : m_sheet(sheet)
    {
        for (const QString &name : {u"SupplyTemp"_s, u"SupplyAirFlow"_s})
            m_inputs.Add(name);
        for (const QString &name :
             {u"HeatingPump"_s, u"HeatingValve"_s, u"AlarmLamp"_s, u"SupplyFanSpeed"_s})
            m_outputs.Add(name);
        m_constants.Add(u"SupplyMin"_s);
        m_tree.SetCollectionRenamable(nullptr, nullptr, &m_constants, &m_inputs, &m_outputs,
                                      nullptr);
        m_editor.setListviewType(dsCode);
        m_editor.InitStrings();
        m_settings.BackColor = static_cast<qint32>(0x80000005); // the window's
        m_settings.FontName = u"DejaVu Sans Mono"_s;
        m_settings.FontSize = 10;
        show(legibleOn(QGuiApplication::palette(), m_settings));
        m_editor.resize(560, 250);
        m_editor.show();
        m_editor.activateWindow();
        box().setFocus();
        view().setLineNumbersVisible(true);
        view().setFoldingEnabled(true);
        settle();
    }

    RichTextSettings settings() const { return m_settings; }
    ORVListView &editor() { return m_editor; }
    CodeView &view() { return *m_editor.codeView(); }
    RichTextBox &box() { return *m_editor.RTextBox(); }

    void show(const RichTextSettings &settings)
    {
        m_editor.Init_RichTextBox(settings);
        m_editor.openProgram(heating);
        view().goToLine(2);
    }
    void add(const QString &caption) { m_sheet.add(caption, m_editor); }
    void add(const QString &caption, QWidget *shown)
    {
        if (shown)
            m_sheet.add(caption, *shown);
    }

    void type(const QString &text)
    {
        for (const QChar c : text) {
            QWidget *receiver = QApplication::focusWidget();
            QKeyEvent press(QEvent::KeyPress, c.toUpper().unicode(), Qt::NoModifier, QString(c));
            QApplication::sendEvent(receiver ? receiver : &box(), &press);
        }
    }
    // Lets the mouse rest on the letter at a place of the text.
    void restAt(qint32 place)
    {
        QTextCursor letter(box().document());
        letter.setPosition(place);
        const QPointF there = box().cursorRect(letter).center() + QPointF(2, 0);
        const QPointF onScreen = box().viewport()->mapToGlobal(there);
        QEnterEvent enter(there, there, onScreen);
        QApplication::sendEvent(box().viewport(), &enter);
        QMouseEvent move(QEvent::MouseMove, there, onScreen, Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(box().viewport(), &move);
        settle();
    }
    // What comes later has come then.
    static void settle()
    {
        for (const QDeadlineTimer end(600); !end.hasExpired();)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
    }

private:
    Sheet &m_sheet;
    PointList m_inputs, m_outputs, m_constants;
    ORVTreeview m_tree;
    RichTextSettings m_settings = defaultColours();
    ORVListView m_editor;
};

Problem problem(qint32 line, qint32 from, qint32 length, ProblemSeverity severity)
{
    Problem found;
    found.line = line;
    found.from = from;
    found.length = length;
    found.severity = severity;
    found.text = u"To be looked at"_s;
    return found;
}

void addMarginAndMarks(CodePicture &code)
{
    code.view().setCurrentLineShown(true);
    code.view().setPairsShown(true);
    code.view().setIndentGuidesShown(true);
    code.view().setProblems({problem(3, 4, 11, ProblemSeverity::Warning),
                             problem(6, 8, 9, ProblemSeverity::Error),
                             problem(9, 4, 12, ProblemSeverity::Hint)});
    MarginMark timed;
    timed.line = 5;
    ImageList pictures;
    Pictures::fillInto(pictures);
    timed.picture = pictures.Picture(u"Timers"_s);
    code.view().setMarks({timed});
    code.view().toggleBookmark();
    code.add(u"Numbers, the caret's line, a block, guides, problems, a bookmark, a host's mark"_s);
    code.view().toggleBookmark();
    code.view().setProblems({});
    code.view().setMarks({});
}

void addFolding(CodePicture &code)
{
    code.view().foldAll();
    code.add(u"A block folded"_s);
    code.view().unfoldAll();
}

void addValues(CodePicture &code)
{
    code.view().setLiveValuesShown(true);
    code.view().setLiveValues({{u"SupplyTemp"_s, u"19.4 °C"_s},
                               {u"SupplyMin"_s, u"14 °C"_s},
                               {u"HeatingPump"_s, u"On"_s},
                               {u"HeatingValve"_s, u"22 %"_s},
                               {u"AlarmLamp"_s, u"Off"_s}});
    code.add(u"Live values"_s);
}

void addList(CodePicture &code)
{
    code.view().setWordListOpensItself(true);
    code.view().setWordDescriptions({{u"SupplyTemp"_s, u"Supply air, duct after fan"_s},
                                     {u"SupplyAirFlow"_s, u"Measuring cross"_s},
                                     {u"SupplyFanSpeed"_s, u"Frequency converter"_s},
                                     {u"SupplyMin"_s, u"Least temperature"_s}});
    code.box().setSelStart(code.box().TextLength());
    code.type(u"supp"_s);
    CodePicture::settle();
    code.add(u"The list that opens by itself"_s,
             code.editor().findChild<QWidget *>(u"WordMatches"_s));
    code.box().setSelStart(0);
    code.view().setWordListOpensItself(false);
}

void addBars(CodePicture &code)
{
    code.show(legibleOn(QGuiApplication::palette(), code.settings()));
    code.box().setSelStart(0);
    code.view().showFindBar();
    code.type(u"heating"_s);
    CodePicture::settle();
    code.add(u"The find bar"_s);
    code.view().showGoToLine();
    code.type(u"6"_s);
    code.add(u"The field for a line"_s);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(QApplication::focusWidget(), &escape);
}

void addCard(CodePicture &code)
{
    const QObject asked;
    QObject::connect(&code.view(), &CodeView::hoverAsked, &asked,
                     [](const QString &word, qint32, HoverAnswer *answer) {
                         answer->setName(word);
                         answer->setKind(dsInput);
                         answer->setValue(u"19.4"_s);
                         answer->setUnit(u"°C"_s);
                         answer->setDescription(u"Supply air, duct after fan"_s);
                     });
    code.restAt(static_cast<qint32>(code.box().document()->toPlainText().indexOf(u"SupplyTemp"_s)) +
                1);
    code.add(u"The card of the word that the mouse rests on"_s,
             code.box().findChild<QWidget *>(u"TipCard"_s));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(code.box().viewport(), &leave);
}

void addReadableColours(CodePicture &code)
{
    RichTextSettings light = code.settings(); // made for a light ground
    light.BackColor = 0x1e1e1e;
    code.view().setLiveValuesShown(false);
    code.show(light);
    code.add(u"Colours of a light ground on a dark one"_s);
    code.view().setAdaptsColours(true);
    code.add(u"The same, adapted"_s);
}

} // namespace

void codeScene(Sheet &sheet)
{
    sheet.setColumns(2);
    CodePicture code(sheet);
    addMarginAndMarks(code);
    addFolding(code);
    addValues(code);
    addBars(code);
    addReadableColours(code);
    CodePicture words(sheet);
    addList(words);
    addCard(words);
}
