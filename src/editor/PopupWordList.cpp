#include "editor/PopupWordList.h"

#include "base/KeyCodes.h"
#include "base/PopupPlace.h"
#include "base/TextRules.h"
#include "editor/EditorThread.h"
#include "editor/OpenWordList.h"
#include "editor/WordInBox.h"
#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int mostRowsShown = 12;
constexpr int fewestTyped = 3; // letters that open it by themselves

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
    , m_all(list, m_words)
    , m_matching(list, m_words)
{
    connect(&m_list, &ReportList::DblClick, this, [this] {
        if (isShown())
            pickChosen();
    });
    m_placing.setSingleShot(true);
    connect(&m_placing, &QTimer::timeout, this, &PopupWordList::followOnScreen);
    for (const QScrollBar *bar : {m_box.verticalScrollBar(), m_box.horizontalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &PopupWordList::placeSoon);
    connect(&m_matching, &MatchingWords::doubleClicked, this, [this] {
        if (isShown())
            pickChosen();
    });
}

PopupWordList::~PopupWordList()
{
    close(); // while the views that it looks at are there
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

WordListFace &PopupWordList::face()
{
    if (m_opensItself)
        return m_matching;
    return m_all;
}

void PopupWordList::setOpensItself(bool on)
{
    if (on == m_opensItself)
        return;
    close();
    m_opensItself = on;
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
    m_isAsked = true;
    stand(word.Word);
}

void PopupWordList::stand(const QString &word)
{
    m_matching.setAsked(m_isAsked);
    if (!face().show(word) && !m_isAsked)
        return;
    QAbstractItemView &view = face().view(); // made before its events are looked at
    m_thread.openList.list = this;
    QApplication::instance()->installEventFilter(this);
    place();
    view.show();
    view.raise();
    face().choose();
    if (face().chosen() < 0)
        view.scrollToTop();
    Q_EMIT placed();
}

QRect PopupWordList::chosenOnScreen()
{
    WordListFace &shown = face();
    if (!isShown() || shown.chosen() < 0)
        return {};
    const QAbstractItemView &view = shown.view();
    const QRect row = view.visualRect(view.model()->index(shown.chosen(), 0));
    if (!view.viewport()->rect().intersects(row))
        return {};
    const int top = view.viewport()->mapToGlobal(row.topLeft()).y();
    return {view.geometry().left(), top, view.width(), row.height()};
}

// The caret stands behind what was typed, and nobody wants anything else of the list.
bool PopupWordList::canOpenItself() const
{
    return m_opensItself && !m_thread.openList.list && canStand() && m_box.hasFocus() &&
           !m_box.isComposing() && m_box.SelLength() == 0 && mayUserEdit(m_box);
}

void PopupWordList::noteTyped()
{
    if (!canOpenItself())
        return;
    const WordAtCaret word = GetWordAtCaret(m_box);
    const bool isAtEnd = word.Word == word.PartBeforeCaret;
    if (!isAtEnd || word.Word.size() < fewestTyped || word.WordStart == m_shutStart ||
        IsCommentLine(m_box.lineText(m_box.GetLineFromChar(m_box.SelStart()))))
        return;
    catchUp();
    if (!m_words.goesOnBehind(word.Word))
        return;
    m_wordStart = word.WordStart;
    m_isAsked = false;
    stand(word.Word);
}

void PopupWordList::close()
{
    if (!isShown())
        return;
    m_thread.openList.list.clear();
    m_placing.stop();
    QApplication::instance()->removeEventFilter(this);
    face().view().hide();
    Q_EMIT closed();
}

void PopupWordList::shut()
{
    m_shutStart = m_wordStart;
    close();
}

// A word that was shut and has gone, or been left, is another one when it comes again.
void PopupWordList::forgetShut()
{
    if (m_shutStart == 0)
        return;
    const WordAtCaret word = GetWordAtCaret(m_box);
    if (word.WordStart != m_shutStart || word.Word.isEmpty())
        m_shutStart = 0;
}

bool PopupWordList::key(qint16 keyCode)
{
    switch (keyCode) {
    case EscapeKey:
        shut();
        return true;
    case EnterKey:
    case TabKey:
        return pickChosen();
    case HomeKey:
    case EndKey:
        if (!m_isAsked) { // one who types goes on in the line
            close();
            return false;
        }
        [[fallthrough]];
    case UpKey:
    case DownKey:
    case PageUpKey:
    case PageDownKey:
        move(keyCode);
        return true;
    default:
        return false;
    }
}

bool PopupWordList::pickChosen()
{
    const ListItem *item = face().chosen() < 0 ? nullptr : m_list.SelectedItem();
    const bool isTyped = !m_isAsked && item && isSameWord(item->Text(), GetWordAtCaret(m_box).Word);
    close();
    if (!item || isTyped) // the key has its own use
        return false;
    Q_EMIT picked(item->Text(), item->Tag().toInt());
    return true;
}

void PopupWordList::move(qint16 keyCode)
{
    const int last = face().rows() - 1;
    const int page = std::max(1, rowsShown() - 1);
    int row = face().chosen();
    switch (keyCode) {
    case UpKey:
        row -= 1;
        break;
    case DownKey:
        row += 1;
        break;
    case PageUpKey:
        row -= page;
        break;
    case PageDownKey:
        row += page;
        break;
    case HomeKey:
        row = 0;
        break;
    default:
        row = last;
    }
    if (last >= 0)
        face().choose(std::clamp(row, 0, last));
}

void PopupWordList::follow()
{
    if (!isShown()) {
        forgetShut();
        return;
    }
    const WordAtCaret word = GetWordAtCaret(m_box);
    if (word.WordStart != m_wordStart || m_box.SelLength() > 0)
        close();
    else
        showFor(word.PartBeforeCaret);
}

void PopupWordList::showFor(const QString &word)
{
    const int rows = rowsShown();
    const bool isMore = face().show(word);
    if (!m_isAsked && (!isMore || word.size() < fewestTyped)) {
        close();
        return;
    }
    if (rowsShown() != rows)
        place();
    face().choose();
}

int PopupWordList::rowsShown()
{
    return std::clamp(face().rows(), 1, mostRowsShown);
}

// The word's beginning, or the edge of the box that it lies beyond, as high as the line.
QRect PopupWordList::wordOnScreen() const
{
    const QRect caret = m_box.cursorRect();
    QTextCursor start = m_box.textCursor();
    const qint32 column = m_wordStart - 1 - m_box.lineStart(start.blockNumber());
    start.setPosition(start.block().position() + std::clamp(column, 0, start.block().length() - 1));
    const int left = std::clamp(m_box.cursorRect(start).left(), 0, std::max(0, caret.left()));
    return {m_box.viewport()->mapToGlobal(QPoint(left, caret.top())), QSize(1, caret.height())};
}

void PopupWordList::place()
{
    const QRect word = wordOnScreen();
    const QScreen *screen = QGuiApplication::screenAt(word.center());
    if (!screen)
        screen = m_box.screen();
    QAbstractItemView &view = face().view();
    const int frame = 2 * view.frameWidth();
    const int height = rowsShown() * std::max(1, face().rowHeight()) + frame;
    const int bar = view.verticalScrollBar()->sizeHint().width();
    const QSize wanted(face().wantedWidth() + bar + frame, height);
    const QRect place = popupPlace(word, {.wanted = wanted, .gap = 2}, screen->availableGeometry());
    const bool hasBar = face().rows() > rowsShown() || place.height() < height;
    view.setGeometry(place);
    face().fit(place.width() - frame - (hasBar ? bar : 0));
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
    if (!canStand() || !isWordInSight())
        return close();
    place();
    Q_EMIT placed();
}

// What happens to the box itself.
void PopupWordList::watchBox(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Hide:
        close();
        break;
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (!canStand())
            close();
        break;
    case QEvent::InputMethod: // whose own list stands there
        if (!m_isAsked && !static_cast<const QInputMethodEvent &>(event).preeditString().isEmpty())
            close();
        break;
    default:
        break;
    }
}

bool PopupWordList::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    const QAbstractItemView &view = face().view();
    if (watched == &m_box)
        watchBox(*event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (widget && widget != &view && !view.isAncestorOf(widget))
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
