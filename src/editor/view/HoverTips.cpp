#include "editor/view/HoverTips.h"

#include "editor/rules/structure/BlockWords.h"
#include "editor/view/Problems.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/box/LinePlaces.h"
#include "widgets/look/CellText.h"
#include "widgets/look/PlainToolTip.h"
#include "widgets/look/TipCard.h"
#include <ORVTListview/HoverAnswer.h>

#include <QtCore/QTimer>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <chrono>

namespace ORVTListview {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestValue = 40; // so that its unit is seen

QString valueOf(const HoverAnswer &answer)
{
    const QString value = beginningOf(answer.value(), longestValue);
    return value.isEmpty() || answer.unit().isEmpty() ? value : value + u' ' + answer.unit();
}

TipContent contentOf(const HoverAnswer &answer, const HoverTips::Pictures &pictures)
{
    TipContent content;
    content.text = answer.text();
    if (!content.text.isEmpty())
        return content;
    content.title = answer.name();
    content.value = valueOf(answer);
    content.text = answer.description();
    const QString kind = answer.kind() == dsCode ? QString() : displayName(answer.kind());
    if (kind.isEmpty())
        return content;
    content.kind = Localise(kind);
    if (pictures)
        content.picture = pictures(kind);
    return content;
}

} // namespace

HoverTips::HoverTips(QPlainTextEdit &box, const BoxLayers &layers, const Problems &problems)
    : m_box(box)
    , m_layers(layers)
    , m_problems(problems)
    , m_viewport(box.viewport())
    , m_rest(new QTimer(&box))
{
    m_rest->setObjectName(u"MouseRest"_s);
    m_rest->setSingleShot(true);
    m_rest->setInterval(400ms);
    connect(m_rest, &QTimer::timeout, this, &HoverTips::tellAtMouse);
    m_viewport->installEventFilter(this);
}

bool HoverTips::Word::holds(const QPoint &place) const
{
    return std::any_of(places.cbegin(), places.cend(),
                       [&](const QRectF &each) { return each.contains(place); });
}

std::optional<HoverTips::Word> HoverTips::wordAt(const QPoint &place) const
{
    for (const ShownLine &line : m_layers.shownLines(place.y(), place.y() + 1)) {
        const QString text = line.block.text().left(longestLine);
        for (const TextPiece &piece : wordsOf(text)) {
            const Word word{text.sliced(piece.start, piece.length), line.block.blockNumber() + 1,
                            placesOf(line, piece)};
            if (word.holds(place))
                return word;
        }
    }
    return {};
}

QRect HoverTips::onScreen(const Word &word) const
{
    QRectF whole;
    for (const QRectF &place : word.places)
        whole |= place;
    const QRect shown = whole.toAlignedRect() & m_box.viewport()->rect();
    return {m_box.viewport()->mapToGlobal(shown.topLeft()), shown.size()};
}

TipCard &HoverTips::card()
{
    if (!m_card)
        m_card = new TipCard(m_box);
    return *m_card;
}

// The host may do anything meanwhile; false when there is nothing to show, or when this
// is no more.
bool HoverTips::ask(const QString &word, qint32 line, HoverAnswer &answer)
{
    if (m_isAsking || !m_host.listens || !m_host.listens())
        return false;
    const QPointer<HoverTips> self(this);
    const auto askHost = m_host.ask;
    m_isAsking = true;
    askHost(word, line, &answer);
    if (!self)
        return false;
    m_isAsking = false;
    return !answer.isEmpty() && m_box.isVisible() && m_box.isActiveWindow();
}

void HoverTips::tellAtMouse()
{
    if (!m_mouse || !m_box.isActiveWindow() || QApplication::activePopupWidget())
        return;
    const std::optional<Word> word = wordAt(*m_mouse);
    if (!word || !m_problems.textAt(*m_mouse).isEmpty())
        return;
    m_word = word;
    HoverAnswer answer;
    if (!ask(word->text, word->line, answer) || !m_mouse || wordAt(*m_mouse) != word)
        return;
    QToolTip::hideText();
    card().showAt(onScreen(*word), contentOf(answer, m_pictures));
}

void HoverTips::tellBeside(const QRect &row, const QString &word)
{
    HoverAnswer answer;
    if (!ask(word, m_box.textCursor().blockNumber() + 1, answer))
        return;
    hide();
    QToolTip::hideText();
    watch(true);
    card().showBeside(row, contentOf(answer, m_pictures));
    m_beside = {row, word};
}

// The card stays where it is, without a blink.
void HoverTips::renew()
{
    if (!m_beside || !m_card || !m_card->isVisible())
        return;
    const Beside beside = *m_beside;
    HoverAnswer answer;
    if (ask(beside.word, m_box.textCursor().blockNumber() + 1, answer) && m_beside)
        card().showBeside(beside.row, contentOf(answer, m_pictures));
}

void HoverTips::hide()
{
    if (!m_viewport)
        return;
    m_rest->stop();
    m_word.reset();
    m_beside.reset();
    if (m_card)
        m_card->hide();
    watch(m_mouse.has_value());
}

void HoverTips::followMouse(const QPoint &place, bool isDragging)
{
    m_mouse = place;
    if (isDragging)
        return hide();
    if (m_word && m_word->holds(place))
        return;
    if (m_word)
        hide();
    m_rest->start();
}

void HoverTips::noteLeave()
{
    m_mouse.reset();
    hide();
}

// The mouse moves over the box without a word to it; the application hears of it. Nothing
// is listened to while the mouse is elsewhere and no card is shown.
void HoverTips::watch(bool on)
{
    if (on == m_isWatching)
        return;
    m_isWatching = on;
    const QList<QScrollBar *> bars{m_box.verticalScrollBar(), m_box.horizontalScrollBar()};
    if (!on) {
        QApplication::instance()->removeEventFilter(this);
        for (QScrollBar *bar : bars)
            bar->disconnect(this);
        m_box.document()->disconnect(this);
        return;
    }
    QApplication::instance()->installEventFilter(this);
    for (const QScrollBar *bar : bars)
        connect(bar, &QScrollBar::valueChanged, this, &HoverTips::hide);
    connect(m_box.document(), &QTextDocument::contentsChanged, this, &HoverTips::hide);
}

bool HoverTips::endsTip(const QObject *watched, const QEvent &event) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // a key that is a shortcut is no more than that
    case QEvent::Wheel:
    case QEvent::MouseButtonPress:
        return true;
    case QEvent::FocusOut:
    case QEvent::Hide:
        return watched == &m_box;
    case QEvent::WindowDeactivate:
        return watched == m_box.window();
    case QEvent::Move:
    case QEvent::Resize:
        return watched == &m_box || (widget && widget->isAncestorOf(&m_box));
    default:
        return false;
    }
}

bool HoverTips::eventFilter(QObject *watched, QEvent *event)
{
    if (m_viewport && m_isWatching && endsTip(watched, *event))
        hide();
    if (!m_viewport || watched != m_viewport)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Enter:
        if (m_host.listens && m_host.listens()) {
            m_mouse = static_cast<QEnterEvent *>(event)->position().toPoint();
            watch(true);
        }
        break;
    case QEvent::Leave:
        noteLeave();
        break;
    case QEvent::MouseMove:
        if (const auto &move = static_cast<QMouseEvent &>(*event); m_isWatching)
            followMouse(move.position().toPoint(), move.buttons() != Qt::NoButton);
        break;
    case QEvent::ToolTip:
        return showToolTip(static_cast<QHelpEvent &>(*event));
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// What is wrong comes before what the host answers, and that before the box's own tip.
bool HoverTips::showToolTip(const QHelpEvent &event)
{
    QRect place;
    const QString text = m_problems.textAt(event.pos(), &place);
    if (text.isEmpty())
        return m_card && m_card->isVisible();
    hide();
    showPlainToolTip(event, text, *m_box.viewport(), place);
    return true;
}

} // namespace ORVTListview
