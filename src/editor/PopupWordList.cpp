#include "editor/PopupWordList.h"

#include "base/KeyCodes.h"
#include "editor/EditorThread.h"
#include "editor/OpenWordList.h"
#include "editor/WordInBox.h"
#include "editor/rules/PopupPlace.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "widgets/look/TextWidths.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int mostRowsShown = 12;

// Of average width. Texts that are longer end in an ellipsis.
constexpr int fewestLetters = 12;
constexpr int mostLetters = 48;

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
        if (isShown())
            pickChosen();
    });
    m_placing.setSingleShot(true);
    connect(&m_placing, &QTimer::timeout, this, &PopupWordList::followOnScreen);
    for (const QScrollBar *bar : {m_box.verticalScrollBar(), m_box.horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &PopupWordList::placeSoon);
    const auto forget = [this] { m_measured = 0; };
    const QAbstractItemModel *rows = m_list.model();
    connect(rows, &QAbstractItemModel::modelReset, this, forget);
    connect(rows, &QAbstractItemModel::rowsInserted, this, forget);
    connect(rows, &QAbstractItemModel::dataChanged, this, forget);
}

void PopupWordList::rememberTableManner()
{
    if (m_hasList)
        m_tableManner.change(popupManner, ListManner::of(m_list)); // the host's doing
    else
        m_tableManner = ListManner::of(m_list);
}

void PopupWordList::takeList()
{
    close();
    rememberTableManner();
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
    rememberTableManner();
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
}

void PopupWordList::catchUp()
{
    if (m_hasList && !isShown() && m_thread.knownWords().changes() != m_taken)
        refill();
}

bool PopupWordList::isShown() const
{
    return m_thread.openList.list.data() == this;
}

bool PopupWordList::canStand() const
{
    return m_hasList && m_box.isVisible() && m_box.isEnabled() && !m_box.isReadOnly();
}

// Keys come to the box, whatever the host opened the list from; what hears of the focus
// may do anything.
void PopupWordList::open()
{
    const QPointer<PopupWordList> self(this);
    if (canStand()) {
        if (!m_box.isActiveWindow())
            m_box.activateWindow();
        m_box.setFocus();
    }
    if (!self || !canStand())
        return;
    m_box.ensureCursorVisible();
    const WordAtCaret word = GetWordAtCaret(m_box);
    m_wordStart = word.WordStart;
    m_thread.openList.list = this;
    QApplication::instance()->installEventFilter(this);
    place();
    m_list.show();
    m_list.raise();
    chooseForWord(word.Word);
    if (chosen() < 0)
        showFirst(0);
}

void PopupWordList::close()
{
    if (!isShown())
        return;
    m_thread.openList.list.clear();
    m_placing.stop();
    QApplication::instance()->removeEventFilter(this);
    m_list.hide();
}

void PopupWordList::chooseForWord(const QString &word)
{
    const qsizetype exact = word.isEmpty() ? -1 : m_words.find(word);
    choose(exact >= 0 || word.isEmpty() ? exact : m_words.findBeginning(word));
    if (const qsizetype place = chosen(); place >= 0)
        showFirst(static_cast<int>(place)); // what else begins so comes behind it
}

void PopupWordList::showFirst(int row)
{
    m_list.scrollTo(m_list.model()->index(row, 0), ReportList::PositionAtTop);
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
    if (!isShown())
        return;
    const WordAtCaret word = GetWordAtCaret(m_box);
    if (word.WordStart != m_wordStart || m_box.SelLength() > 0)
        close();
    else
        chooseForWord(word.PartBeforeCaret);
}

int PopupWordList::rowsShown() const
{
    return std::clamp(m_list.ListItems()->Count(), 1, mostRowsShown);
}

int PopupWordList::widestRow() const
{
    TextWidths widths(m_list.font());
    int widest = 0;
    int row = 0;
    const QAbstractItemModel &rows = *m_list.model();
    for (int i = 0; i < rows.rowCount(); ++i) {
        const int before = widest;
        widths.widen(widest, rows.index(i, 0).data().toString());
        if (widest > before)
            row = i;
    }
    return row;
}

int PopupWordList::wantedWidth()
{
    if (m_measured == 0 || m_measuredIn != m_list.font()) {
        m_measuredIn = m_list.font();
        m_measured = m_list.sizeHintForIndex(m_list.model()->index(widestRow(), 0)).width();
    }
    const int letter = m_list.fontMetrics().averageCharWidth();
    return std::clamp(m_measured, fewestLetters * letter, mostLetters * letter);
}

// From the word's beginning, or from the edge of the box that it lies beyond, to the
// caret.
QRect PopupWordList::wordOnScreen() const
{
    const QRect caret = m_box.cursorRect();
    QTextCursor start = m_box.textCursor();
    const qint32 column = m_wordStart - 1 - m_box.lineStart(start.blockNumber());
    start.setPosition(start.block().position() + std::clamp(column, 0, start.block().length() - 1));
    const int left = std::clamp(m_box.cursorRect(start).left(), 0, std::max(0, caret.left()));
    return {m_box.viewport()->mapToGlobal(QPoint(left, caret.top())),
            QSize(std::max(1, caret.right() - left), caret.height())};
}

void PopupWordList::place()
{
    const QRect word = wordOnScreen();
    const QScreen *screen = QGuiApplication::screenAt(word.center());
    if (!screen)
        screen = m_box.screen();
    const int frame = 2 * m_list.frameWidth();
    const int height =
        rowsShown() * std::max(1, m_list.verticalHeader()->defaultSectionSize()) + frame;
    const int bar = m_list.verticalScrollBar()->sizeHint().width();
    const QRect place =
        popupPlace(word, {wantedWidth() + bar + frame, height}, screen->availableGeometry());
    const bool hasBar = m_list.ListItems()->Count() > rowsShown() || place.height() < height;
    m_list.setGeometry(place);
    m_list.setColumnWidth(0, place.width() - frame - (hasBar ? bar : 0));
}

void PopupWordList::placeSoon()
{
    if (isShown())
        m_placing.start(0);
}

bool PopupWordList::isWordInSight() const
{
    return m_box.viewport()->rect().intersects(m_box.cursorRect());
}

void PopupWordList::followOnScreen()
{
    if (canStand() && isWordInSight())
        place();
    else
        close();
}

bool PopupWordList::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (widget && widget != &m_list && !m_list.isAncestorOf(widget))
            close();
        break;
    case QEvent::Hide:
        if (watched == &m_box)
            close();
        break;
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (watched == &m_box && !canStand())
            close();
        break;
    case QEvent::WindowDeactivate:
        if (watched == m_box.window())
            close();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (watched == &m_box || (widget && widget->isAncestorOf(&m_box)))
            placeSoon();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
