#include "find/FindBar.h"

#include "base/TextRules.h"
#include "base/ThreadState.h"
#include "editor/view/FoundMarks.h"
#include "find/BoxSearch.h"
#include "find/HistoryField.h"
#include "find/ReplaceRow.h"
#include "find/ShownFailure.h"
#include "find/rules/SearchHistory.h"
#include "shared/texts/TextTable.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QScopeGuard>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QAccessible>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

using namespace Qt::StringLiterals;

FindBar::FindBar(RichTextBox &box, FoundMarks &marks, const Acts &acts)
    : EditorBar(box, BoxLayers::of(box))
    , m_box(box)
    , m_marks(marks)
    , m_histories(threadPart<SearchHistories>())
    , m_acts(acts)
{
    setObjectName(u"FindBar"_s);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(inside);
    rows->setSpacing(3);
    rows->addLayout(makeSearchRow());
    rows->addWidget(makeReplaceRow());
    showTexts();
    connectControls();
    setFocusProxy(m_wanted);
}

FindBar::~FindBar() = default;

void FindBar::connectControls()
{
    connect(m_wanted, &QComboBox::editTextChanged, this, &FindBar::search);
    connect(m_matchCase, &QToolButton::toggled, this, &FindBar::search);
    connect(m_wholeWord, &QToolButton::toggled, this, &FindBar::search);
    connect(m_next, &QToolButton::clicked, this, [this] { find(&Acts::findNext); });
    connect(m_previous, &QToolButton::clicked, this, [this] { find(&Acts::findPrevious); });
    connect(m_more, &QToolButton::toggled, this, &FindBar::showReplaceRow);
    connect(m_close, &QToolButton::clicked, this, &FindBar::close);
    connect(m_replaceRow, &ReplaceRow::replaceAsked, this,
            [this] { runShowingFailure([this] { replace(); }); });
    connect(m_replaceRow, &ReplaceRow::replaceAllAsked, this,
            [this] { runShowingFailure([this] { replaceAll(); }); });
    connect(&m_marks.places(), &FoundPlaces::changed, this, [this] {
        const QPointer<FindBar> self(this); // who hears of the selection may do anything
        seek();
        if (self)
            showCount();
    });
    connect(&m_box, &RichTextBox::cursorPositionChanged, this, &FindBar::followCaret);
    connect(&m_box, &RichTextBox::selectionChanged, this, &FindBar::followCaret);
}

void FindBar::ask()
{
    if (!m_box.isVisible() || !m_box.isEnabled())
        return;
    const QString selected = m_box.SelText();
    const bool takesSelection = !selected.isEmpty() && !selected.contains(u'\n');
    const bool wasShown = isVisible();
    {
        const QSignalBlocker quiet(m_wanted);
        const QString text = takesSelection ? selected
                             : wasShown     ? searched()
                                            : m_histories.last.text;
        HistoryField::list(*m_wanted, m_histories.searched);
        HistoryField::show(*m_wanted, text);
    }
    if (!wasShown) {
        const QSignalBlocker quietCase(m_matchCase);
        const QSignalBlocker quietWord(m_wholeWord);
        m_matchCase->setChecked(m_histories.last.how.matchCase);
        m_wholeWord->setChecked(m_histories.last.how.wholeWord);
        m_more->setChecked(false);
    }
    showTexts();
    noteReadOnly();
    open();
    m_isSeeking = false;
    m_origin = m_box.textCursor();
    m_marks.places().look(asInBox(searched()), how(), m_origin.selectionStart());
    m_wanted->setFocus(Qt::ShortcutFocusReason);
    m_wanted->lineEdit()->selectAll();
}

void FindBar::noteClosed()
{
    m_isSeeking = false;
    m_isToBeTold = false;
    HistoryField::remember(*m_wanted, m_histories.searched);
    m_marks.places().look({}, {}, 0);
}

QString FindBar::searched() const
{
    return m_wanted->currentText();
}

TextSearch FindBar::how() const
{
    return {m_wholeWord->isChecked(), m_matchCase->isChecked()};
}

// For searches without the bar.
void FindBar::noteSearch()
{
    if (!searched().isEmpty())
        m_histories.last = {searched(), how()};
}

// What is typed is searched for from where the user was before.
void FindBar::search()
{
    if (isHidden())
        return;
    noteSearch();
    m_isSeeking = true;
    m_isToBeTold = !searched().isEmpty();
    m_marks.places().look(asInBox(searched()), how(), m_origin.selectionStart());
}

void FindBar::seek()
{
    if (!m_isSeeking)
        return;
    const FoundPlaces &places = m_marks.places();
    if (const auto place = places.firstFrom(m_origin.selectionStart())) {
        m_isSeeking = false;
        select(*place, *place + places.length());
    } else if (places.isCounted()) {
        m_isSeeking = false;
        select(m_origin.anchor(), m_origin.position());
    }
}

void FindBar::select(int from, int to)
{
    QTextCursor caret = m_box.textCursor();
    if (caret.anchor() == from && caret.position() == to)
        return;
    const QPointer<FindBar> self(this);
    m_isSelecting = true;
    {
        const KeptView view(m_box);
        caret.setPosition(from);
        caret.setPosition(to, QTextCursor::KeepAnchor);
        m_box.setTextCursor(caret);
    }
    if (self)
        m_isSelecting = false;
}

void FindBar::followCaret()
{
    if (isHidden() || m_isSelecting)
        return;
    m_isSeeking = false;
    m_origin = m_box.textCursor();
    if (m_marks.places().isCounted()) // else it is shown soon
        showCount();
}

void FindBar::find(Find act)
{
    if (searched().isEmpty())
        return;
    noteSearch();
    m_isSeeking = false;
    HistoryField::remember(*m_wanted, m_histories.searched);
    const QPointer<FindBar> self(this);
    m_isSelecting = true; // what is found is told once it is selected
    (m_acts.*act)();
    if (!self)
        return;
    m_isSelecting = false;
    m_origin = m_box.textCursor();
    m_isToBeTold = true;
    showCount();
}

// False where there is nothing to search for.
bool FindBar::beginReplacing(BoxSearch &search)
{
    if (searched().isEmpty())
        return false;
    noteSearch();
    m_replaceRow->remember();
    search.begin(m_box);
    return true;
}

void FindBar::replace()
{
    BoxSearch search;
    if (!beginReplacing(search))
        return;
    const QPointer<FindBar> self(this);
    search.replace(searched(), m_replaceRow->text());
    if (self)
        find(&Acts::findNext);
}

void FindBar::replaceAll()
{
    BoxSearch search;
    if (!beginReplacing(search))
        return;
    search.setOption(RichTextBox::FindWholeWord, how().wholeWord);
    search.setOption(RichTextBox::FindMatchCase, how().matchCase);
    const QPointer<FindBar> self(this);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    const qsizetype count = search.replaceAll(searched(), m_replaceRow->text());
    if (self)
        tell(QString::number(count) + u' ' + Localise(u"replace(s)!"_s));
}

void FindBar::showReplaceRow(bool shown)
{
    m_replaceRow->setVisible(shown);
    layout()->activate();
    fit();
    if (shown)
        m_replaceRow->ask();
}

void FindBar::noteReadOnly()
{
    m_replaceRow->setMayReplace(mayUserEdit(m_box));
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_box && event->type() == QEvent::ReadOnlyChange)
        noteReadOnly();
    if (event->type() == QEvent::KeyPress && isEnter(static_cast<QKeyEvent &>(*event))) {
        auto *button = qobject_cast<QToolButton *>(watched);
        if (button && !button->isCheckable()) {
            button->click();
            return true;
        }
    }
    return EditorBar::eventFilter(watched, event);
}

bool FindBar::isOwnKey(const QKeyEvent &key) const
{
    return isEnter(key);
}

void FindBar::act(const QKeyEvent &key)
{
    find(key.modifiers().testFlag(Qt::ShiftModifier) ? &Acts::findPrevious : &Acts::findNext);
}

// F3 is the host's when it has a shortcut for it.
void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_F3)
        return EditorBar::keyPressEvent(event);
    event->accept();
    act(*event); // after which the bar may be gone
}

QString FindBar::countText() const
{
    const FoundPlaces &places = m_marks.places();
    if (!places.isLooking())
        return {};
    if (places.isCounted() && places.count() == 0)
        return Localise(u"Not found!"_s);
    const QString all = QString::number(places.count()) + (places.isCounted() ? QString() : u"+"_s);
    const QTextCursor selected = m_box.textCursor();
    const bool isOne = selected.selectionEnd() - selected.selectionStart() == places.length();
    const auto number = isOne ? places.numberOf(selected.selectionStart()) : std::nullopt;
    return number ? Localise(u"%1 of %2"_s).arg(QString::number(*number), all)
                  : Localise(u"%1 found"_s).arg(all);
}

void FindBar::showCount()
{
    const QString text = countText();
    if (m_isToBeTold && m_marks.places().isCounted())
        tell(text);
    else
        m_result->setText(text);
    showWhatFits();
}

// A screen reader is told of the same result again, too.
void FindBar::tell(const QString &result)
{
    m_isToBeTold = false;
    if (m_result->text() == result) {
        QAccessibleEvent named(m_result, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&named);
    }
    m_result->setText(result);
    QAccessibleEvent alert(m_result, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace ORVTListview
