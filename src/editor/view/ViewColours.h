#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>

class QPalette;
class QWidget;

namespace ORVTListview {

// Colours for what is painted beside a text, made of the ground that it stands on.
namespace ViewColours {

constexpr double readable = 4.5; // the contrast that text needs
constexpr double visible = 3.0;  // and what is no text

// `share` of the second, 0 to 1, the rest of the first.
QColor mixed(const QColor &one, const QColor &other, double share);

// The colour, as far from the ground as the contrast asks, and no farther.
QColor onGround(const QColor &wanted, const QColor &ground, double leastContrast);

// The same for several grounds, all of them much like the first one.
QColor onGrounds(const QColor &wanted, const QList<QColor> &grounds, double leastContrast);

// The ground of a box's text, whoever chose it, and the text of no colour on it.
QColor groundOf(const QWidget &box);
QColor textOf(const QWidget &box);

// Faint grounds for what is to be found at a glance. The first one moves away from
// the text, so that what is written on it reads as before; where there is nowhere to go
// it is a tint of nearly the same brightness.
QColor faintGround(const QColor &ground);
QColor tinted(const QColor &ground, const QColor &colour);

// Text that is there to be looked up and not to be read all the time.
QColor quietText(const QColor &text, const QColor &ground);

// Under what is searched for, so that text on it reads as before.
QColor foundGround(const QColor &ground);

// What is wrong, doubtful or worth a look.
QColor errorOn(const QColor &ground);
QColor warningOn(const QColor &ground);
QColor hintOn(const QColor &ground);

} // namespace ViewColours
} // namespace ORVTListview
