#include "support/ShownTexts.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>

namespace {

QStringList headersOf(const QHeaderView &header)
{
    QStringList texts;
    for (int i = 0; header.model() && i < header.count(); ++i)
        texts << header.model()->headerData(i, header.orientation()).toString();
    return texts;
}

QStringList tabsOf(const QTabBar &bar)
{
    QStringList texts;
    for (int i = 0; i < bar.count(); ++i)
        texts << bar.tabText(i) << bar.tabToolTip(i);
    return texts;
}

// What only some kinds of widgets have.
QStringList textsOfKind(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return {label->text()};
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return {button->text()};
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return {box->title()};
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return {field->placeholderText()};
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        return {menu->title()};
    if (const auto *bar = qobject_cast<const QStatusBar *>(&widget))
        return {bar->currentMessage()};
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
        return tabsOf(*bar);
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
        return headersOf(*header);
    return {};
}

QStringList textsOf(const QWidget &widget)
{
    QStringList texts{widget.windowTitle(),    widget.toolTip(),
                      widget.statusTip(),      widget.whatsThis(),
                      widget.accessibleName(), widget.accessibleDescription()};
    for (const QAction *action : widget.actions()) {
        texts << action->text() << action->statusTip() << action->whatsThis();
        if (action->toolTip() != action->iconText()) // the text once more
            texts << action->toolTip();
    }
    return texts + textsOfKind(widget);
}

} // namespace

QStringList shownTexts(const QWidget &widget)
{
    QStringList texts = textsOf(widget);
    for (const QWidget *child : widget.findChildren<QWidget *>())
        texts << textsOf(*child);
    texts.removeAll(QString());
    texts.sort();
    texts.removeDuplicates();
    return texts;
}

QStringList shownWithoutLookup(const QWidget &widget)
{
    static const QRegularExpression lookedUp(QStringLiteral("\u27e6[^\u27e7]*\u27e7"));
    static const QRegularExpression word(QStringLiteral("\\p{L}{2}"));
    QStringList texts;
    for (const QString &text : shownTexts(widget)) {
        if (QString(text).remove(u'&').remove(lookedUp).contains(word))
            texts << text;
    }
    return texts;
}
