#pragma once

#include <QtCore/QString>
#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

namespace ORVTListview {

// Shows a text as it stands, wrapped where it is long; an empty one hides the tip.
inline void showPlainToolTip(const QHelpEvent &event, const QString &text, QWidget &widget)
{
    constexpr qsizetype wrapFrom = 80;
    const bool convert = text.size() >= wrapFrom || Qt::mightBeRichText(text);
    QToolTip::showText(event.globalPos(), convert ? Qt::convertFromPlainText(text) : text, &widget);
}

} // namespace ORVTListview
