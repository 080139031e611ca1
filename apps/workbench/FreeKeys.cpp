#include "FreeKeys.h"

#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QMenu>

namespace ORVTListview {
namespace {

// Small; null for a text without one.
QChar keyOf(QString text)
{
    text.remove(QStringLiteral("&&"));
    const qsizetype mark = text.indexOf(u'&');
    return mark < 0 ? QChar() : text.at(mark + 1).toLower();
}

QString withKeyBeside(QString caption, const QString &taken)
{
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i).isLetter() && !taken.contains(caption.at(i).toLower()))
            return caption.insert(i, u'&');
    }
    return caption;
}

} // namespace

QString withFreeKey(QString caption, const QMenu &menu)
{
    QString taken;
    for (const QAction *action : menu.actions())
        taken += keyOf(action->text());
    return withKeyBeside(caption.remove(u'&'), taken);
}

void giveFreeKeys(const QList<QAbstractButton *> &buttons)
{
    QString taken;
    for (const QAbstractButton *button : buttons)
        taken += keyOf(button->text());
    for (QAbstractButton *button : buttons) {
        if (!keyOf(button->text()).isNull())
            continue;
        button->setText(withKeyBeside(button->text(), taken));
        taken += keyOf(button->text());
    }
}

} // namespace ORVTListview
