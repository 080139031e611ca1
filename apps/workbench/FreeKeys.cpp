#include "FreeKeys.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace ORVTListview {
namespace {

QString keysOf(const QMenu &menu)
{
    QString keys;
    for (const QAction *action : menu.actions()) {
        const QString text = action->text().remove(QStringLiteral("&&"));
        if (text.contains(u'&'))
            keys += text.mid(text.indexOf(u'&') + 1, 1).toLower();
    }
    return keys;
}

} // namespace

QString withFreeKey(QString caption, const QMenu &menu)
{
    caption.remove(u'&');
    const QString taken = keysOf(menu);
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i).isLetter() && !taken.contains(caption.at(i).toLower()))
            return caption.insert(i, u'&');
    }
    return caption;
}

} // namespace ORVTListview
