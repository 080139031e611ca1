#include "editor/PopupWordList.h"

#include "base/KeyCodes.h"
#include "editor/EditorThread.h"
#include "editor/WordInBox.h"
#include "editor/rules/KeyRules.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int mostRowsShown = 12;
constexpr int gapToCaretLine = 2; // pixels

constexpr ListManner popupManner{.editsLabels = false,
                                 .isHeaderVisible = false,
                                 .frameStyle = int{QFrame::Box} | int{QFrame::Plain},
                                 .focus = Qt::NoFocus,
                                 .horizontalBar = Qt::ScrollBarAlwaysOff};

QList<RowContent> rowsOf(const PopupWords &words)
{
    QList<RowContent> rows;
    rows.reserve(words.words().size());
    for (const PopupWord &word : words.words()) {
        RowContent row;
        row.key = word.text;
        row.text = word.text;
        row.tag = QString::number(word.style.Colour);
        row.picture = QString::number(word.style.ImageIndex);
        rows.append(std::move(row));
    }
    return rows;
}

} // namespace

PopupWordList::PopupWordList(ReportList &list, RichTextBox &box, const EditorThread &thread)
    : m_list(list)
    , m_box(box)
    , m_thread(thread)
{
    connect(&m_list, &ReportList::DblClick, this, [this] {
        if (m_isShown)
            pickChosen();
    });
}

void PopupWordList::noteTableManner()
{
    if (m_hasList)
        m_tableManner.change(popupManner, ListManner::of(m_list)); // the host's doing
    else
        m_tableManner = ListManner::of(m_list);
}

void PopupWordList::takeList()
{
    close();
    noteTableManner();
    m_hasList = true;
    m_list.setParent(m_list.parentWidget(), Qt::ToolTip | Qt::FramelessWindowHint);
    m_list.setAttribute(Qt::WA_ShowWithoutActivating);
    popupManner.applyTo(m_list);
    m_list.ColumnHeaders()->Clear();
    m_list.ColumnHeaders()->Add(0, QStringLiteral("#"), QStringLiteral("#"));
    refill();
}

void PopupWordList::giveListBack()
{
    if (!m_hasList)
        return;
    close();
    noteTableManner();
    m_hasList = false;
    m_words = {};
    m_list.Clear();
    m_list.setWindowFlags(Qt::Widget);
    m_list.setAttribute(Qt::WA_ShowWithoutActivating, false);
    m_tableManner.applyTo(m_list);
}

void PopupWordList::refill()
{
    if (!m_hasList)
        return;
    close();
    const CodeWordList &known = m_thread.knownWords();
    m_taken = known.changes();
    m_words = PopupWords(known.index(), m_thread.vocabulary, m_thread.settings());
    m_list.setRows(rowsOf(m_words));
    m_list.fitColumns();
}

void PopupWordList::catchUp()
{
    if (m_hasList && !m_isShown && m_thread.knownWords().changes() != m_taken)
        refill();
}

void PopupWordList::open()
{
    const WordAtCaret word = GetWordAtCaret(m_box);
    m_wordStart = word.WordStart;
    chooseForWord(word.Word);
    placeAtCaret();
    m_list.show();
    m_list.raise();
    m_isShown = true;
    QApplication::instance()->installEventFilter(this);
}

void PopupWordList::close()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    QApplication::instance()->removeEventFilter(this);
    m_list.hide();
}

void PopupWordList::chooseForWord(const QString &word)
{
    const qsizetype exact = word.isEmpty() ? -1 : m_words.find(word);
    choose(exact >= 0 || word.isEmpty() ? exact : m_words.findBeginning(word));
}

// The host may have taken rows out of the list or put its own there.
void PopupWordList::choose(qsizetype place)
{
    const bool isThere = place < m_list.ListItems()->Count();
    m_list.goToRow(isThere ? static_cast<qint32>(place + 1) : 0); // 0 chooses none
}

qsizetype PopupWordList::chosen() const
{
    const ListItem *item = m_list.SelectedItem();
    return item ? item->Index() - 1 : -1;
}

bool PopupWordList::key(qint16 keyCode)
{
    switch (keyCode) {
    case EscapeKey:
        close();
        return true;
    case EnterKey:
    case TabKey:
        return pickChosen();
    case UpKey:
    case DownKey:
    case PageUpKey:
    case PageDownKey:
    case HomeKey:
    case EndKey:
        move(keyCode);
        return true;
    default:
        return false;
    }
}

bool PopupWordList::pickChosen()
{
    const ListItem *item = m_list.SelectedItem();
    close();
    if (!item)
        return false;
    Q_EMIT picked(item->Text(), item->Tag().toInt());
    return true;
}

void PopupWordList::move(qint16 keyCode)
{
    const qsizetype last = m_list.ListItems()->Count() - 1;
    const qsizetype page = std::max(1, rowsShown() - 1);
    qsizetype place = chosen();
    switch (keyCode) {
    case UpKey:
        place -= 1;
        break;
    case DownKey:
        place += 1;
        break;
    case PageUpKey:
        place -= page;
        break;
    case PageDownKey:
        place += page;
        break;
    case HomeKey:
        place = 0;
        break;
    default:
        place = last;
    }
    if (last >= 0)
        choose(std::clamp<qsizetype>(place, 0, last));
}

void PopupWordList::follow()
{
    if (!m_isShown)
        return;
    const WordAtCaret word = GetWordAtCaret(m_box);
    if (word.WordStart != m_wordStart || m_box.SelLength() > 0)
        close();
    else
        chooseForWord(word.PartBeforeCaret);
}

int PopupWordList::rowsShown() const
{
    return static_cast<int>(std::clamp<qsizetype>(m_words.words().size(), 1, mostRowsShown));
}

// Under the caret's line, or over it where the screen ends.
void PopupWordList::placeAtCaret()
{
    const QRect caret(m_box.viewport()->mapToGlobal(m_box.cursorRect().topLeft()),
                      m_box.cursorRect().size());
    const QRect screen = m_box.screen()->availableGeometry();
    const int frame = 2 * m_list.frameWidth();
    const int rowHeight = std::max(1, m_list.verticalHeader()->defaultSectionSize());
    const QSize size(
        std::min(m_list.columnWidth(0) + m_list.verticalScrollBar()->sizeHint().width() + frame,
                 screen.width()),
        std::min(rowsShown() * rowHeight + frame, screen.height()));
    int top = caret.bottom() + gapToCaretLine;
    if (top + size.height() > screen.bottom())
        top = std::max(screen.top(), caret.top() - gapToCaretLine - size.height());
    const int left = std::clamp(caret.left(), screen.left(),
                                std::max(screen.left(), screen.right() - size.width()));
    m_list.setGeometry(QRect(QPoint(left, top), size));
}

bool PopupWordList::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    auto *widget = isPress ? qobject_cast<QWidget *>(watched) : nullptr;
    if (widget && widget != &m_list && !m_list.isAncestorOf(widget))
        close();
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
