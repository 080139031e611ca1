#include "widgets/input/FieldMenu.h"

#include "shared/texts/MenuTexts.h"
#include "widgets/input/DragWatch.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <functional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct Command
{
    QString caption;
    QKeySequence::StandardKey key;
    bool isEnabled;
    std::function<void(QLineEdit *)> act;
};

// In the order of the toolkit's own menu.
QList<Command> commandsOf(const QLineEdit &field)
{
    const bool canChange = !field.isReadOnly();
    const bool isSelected = field.hasSelectedText();
    const bool isShown = field.echoMode() == QLineEdit::Normal;
    const bool isAll = field.selectedText() == field.text();
    const auto &clipboard = *QGuiApplication::clipboard();
    const bool canPaste = canChange && !clipboard.text().isEmpty();
    return {
        {u"&Undo"_s, QKeySequence::Undo, canChange && field.isUndoAvailable(), &QLineEdit::undo},
        {u"&Redo"_s, QKeySequence::Redo, canChange && field.isRedoAvailable(), &QLineEdit::redo},
        {u"Cu&t"_s, QKeySequence::Cut, canChange && isSelected && isShown, &QLineEdit::cut},
        {u"&Copy"_s, QKeySequence::Copy, isSelected && isShown, &QLineEdit::copy},
        {u"&Paste"_s, QKeySequence::Paste, canPaste, &QLineEdit::paste},
        {u"&Delete"_s, QKeySequence::UnknownKey, canChange && isSelected, &QLineEdit::del},
        {u"Select &All"_s, QKeySequence::SelectAll, !isAll, &QLineEdit::selectAll},
    };
}

} // namespace

FieldMenu::FieldMenu(QLineEdit &field)
    : QObject(&field)
    , m_field(field)
{
    field.installEventFilter(this);
    // Boxes keep the event from their field, or hand it on past all filters.
    QObject *box = field.parent();
    if (qobject_cast<QComboBox *>(box) || qobject_cast<QAbstractSpinBox *>(box))
        box->installEventFilter(this);
}

void FieldMenu::installOn(QLineEdit &field)
{
    new FieldMenu(field);
    DragWatch::installOn(field); // which takes drops of text
}

bool FieldMenu::eventFilter(QObject *watched, QEvent *event)
{
    const auto isMenus = [watched] { // and neither the host's nor nobody's
        return static_cast<QWidget *>(watched)->contextMenuPolicy() == Qt::DefaultContextMenu;
    };
    if (event->type() != QEvent::ContextMenu || !isMenus())
        return QObject::eventFilter(watched, event);
    open(static_cast<const QContextMenuEvent *>(event)->globalPos());
    event->accept();
    return true;
}

// A child of the field: the views leave a label open while its own menu has the focus.
void FieldMenu::open(const QPoint &place)
{
    auto *menu = new QMenu(&m_field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu);
    menu->popup(place);
}

void FieldMenu::fill(QMenu &menu) const
{
    const QList<Command> commands = commandsOf(m_field);
    QStringList english;
    for (const Command &command : commands)
        english << command.caption;
    const QStringList captions = menuTexts(english);
    for (qsizetype i = 0; i < commands.size(); ++i) {
        const Command &command = commands[i];
        if (command.key == QKeySequence::Cut || command.key == QKeySequence::SelectAll)
            menu.addSeparator();
        QAction *action = menu.addAction(captions[i], &m_field,
                                         [field = &m_field, act = command.act] { act(field); });
        action->setEnabled(command.isEnabled);
        action->setShortcut(command.key);
        action->setShortcutContext(Qt::WidgetShortcut); // shown; the field's own
    }
}

} // namespace ORVTListview
