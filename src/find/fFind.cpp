#include "find/fFind.h"

#include "find/HistoryField.h"
#include "find/ShownFailure.h"
#include "find/rules/SearchHistory.h"
#include "shared/texts/TextTable.h"
#include "widgets/box/CaretPosition.h"
#include "widgets/box/UserEditing.h"
#include "widgets/look/PlainToolTip.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QAccessible>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// A text over several lines is no search text.
QString searchTextOf(const RichTextBox &box)
{
    const QString selected = box.SelText();
    return selected.contains(u'\n') ? QString() : selected;
}

} // namespace

fFind::fFind(SearchHistories &histories)
    : m_histories(histories)
{
    makeControls();
    layOut();
    connectControls();
    InitStrings();
    setMode(Mode::Find);
}

fFind::~fFind() = default;

void fFind::connectControls()
{
    const std::array<Action, 4> actions{&fFind::findNext, nullptr, &fFind::replace,
                                        &fFind::replaceAll};
    for (std::size_t i = 0; i < actions.size(); ++i) {
        if (actions[i])
            connect(m_Cmd[i], &QPushButton::clicked, this, [this, act = actions[i]] { run(act); });
    }
    connect(m_Cmd[1], &QPushButton::clicked, this, &fFind::reject);
    const std::array options{RichTextBox::FindWholeWord, RichTextBox::FindMatchCase};
    for (std::size_t i = 0; i < options.size(); ++i) {
        connect(m_Chk[i], &QCheckBox::toggled, this,
                [this, option = options[i]](bool on) { m_search.setOption(option, on); });
        m_Chk[i]->installEventFilter(this);
    }
}

void fFind::Open(RichTextBox &Target, bool IsReplace)
{
    watch(Target);
    m_search.begin(Target);
    for (QCheckBox *option : m_Chk)
        option->setChecked(false);
    m_result = {};
    InitStrings();
    setMode(IsReplace ? Mode::Replace : Mode::Find);
    fill(*m_Cbo[0], m_histories.searched, searchTextOf(Target));
    if (isReplaceMode())
        fill(*m_Cbo[1], m_histories.replacements, {});
    noteReadOnly();
    m_Cbo[0]->setFocus();
    m_Cbo[0]->lineEdit()->selectAll();
}

void fFind::watch(RichTextBox &target)
{
    unwatch();
    target.installEventFilter(this);
    connect(&target, &QObject::destroyed, this, &fFind::reject);
}

void fFind::unwatch()
{
    if (RichTextBox *box = m_search.box()) {
        box->removeEventFilter(this);
        disconnect(box, &QObject::destroyed, this, nullptr);
    }
    m_search.end();
}

void fFind::done(int result)
{
    unwatch();
    m_isPlaced = false;
    QDialog::done(result);
}

bool fFind::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search.box()) {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            reject();
        else if (event->type() == QEvent::ReadOnlyChange || event->type() == QEvent::EnabledChange)
            noteReadOnly();
    } else if (event->type() == QEvent::ToolTip) {
        auto &option = *qobject_cast<QWidget *>(watched);
        showPlainToolTip(static_cast<const QHelpEvent &>(*event), option.toolTip(), option);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void fFind::noteReadOnly()
{
    const bool canChange = m_search.box() && mayUserEdit(*m_search.box());
    m_Cmd[2]->setEnabled(canChange || !isReplaceMode());
    m_Cmd[3]->setEnabled(canChange);
}

void fFind::setMode(Mode mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    showMode();
    noteReadOnly();
    if (isVisible())
        stayClear();
}

// The dialog stays open.
void fFind::run(Action action)
{
    runShowingFailure([&] { (this->*action)(); });
}

QString fFind::searched() const
{
    return m_Cbo[0]->currentText();
}

void fFind::findNext()
{
    if (searched().isEmpty() || !m_search.box())
        return;
    rememberSearch();
    if (m_search.findNext(searched())) {
        tell([place = caretPosition(*m_search.box())] {
            return Localise(u"Found in"_s) + u' ' + positionDisplay(place);
        });
        stayClear();
    } else {
        tell([] { return Localise(u"Not found!"_s); });
    }
    HistoryField::remember(*m_Cbo[0], m_histories.searched);
}

// For searches without the dialog.
void fFind::rememberSearch()
{
    m_histories.last = {searched(), m_search.how()};
}

void fFind::replace()
{
    if (!isReplaceMode()) {
        setMode(Mode::Replace);
        fill(*m_Cbo[1], m_histories.replacements, {});
        m_Cbo[1]->setFocus();
        return;
    }
    if (searched().isEmpty())
        return;
    m_search.replace(searched(), m_Cbo[1]->currentText());
    HistoryField::remember(*m_Cbo[1], m_histories.replacements);
    findNext();
}

void fFind::replaceAll()
{
    if (!m_search.box())
        return;
    if (searched().isEmpty()) {
        m_search.box()->setSelLength(0);
        return;
    }
    rememberSearch();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    HistoryField::remember(*m_Cbo[1], m_histories.replacements);
    const qsizetype count = m_search.replaceAll(searched(), m_Cbo[1]->currentText());
    tell([count] { return QString::number(count) + u' ' + Localise(u"replace(s)!"_s); });
    stayClear();
}

// A screen reader is told of the same result again, too.
void fFind::tell(const Result &result)
{
    m_result = result;
    const bool isRepeated = m_StatusBar1->currentMessage() == m_result();
    showResult();
    if (isRepeated) {
        QAccessibleEvent named(m_StatusBar1, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&named);
    }
    QAccessibleEvent alert(m_StatusBar1, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void fFind::showResult()
{
    m_StatusBar1->showMessage(m_result ? m_result() : QString());
}

// Shows the text, which becomes an entry if it is none yet.
void fFind::fill(QComboBox &combo, SearchHistory &history, const QString &text)
{
    HistoryField::list(combo, history);
    HistoryField::show(combo, text);
    HistoryField::remember(combo, history);
}

} // namespace ORVTListview
