// orvt-pictures FILE.png: draws every picture of the library on a light and a
// dark ground, beside its index and key, to be looked at.

#include "widgets/look/Pictures.h"
#include <ORVTListview/ImageList.h>

#include <QtCore/QTextStream>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <array>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Ground
{
    QRgb back = 0;
    QRgb text = 0;
};

constexpr std::array grounds{Ground{0xffffffff, 0xff202020}, Ground{0xff1e1e1e, 0xffe0e0e0}};

// A picture's forms from left to right.
struct Form
{
    int size = 0;
    QIcon::Mode mode = QIcon::Normal;
    bool pressed = false;
};

constexpr std::array forms{
    Form{16, QIcon::Normal, false},   Form{32, QIcon::Normal, false},
    Form{64, QIcon::Normal, false},   Form{16, QIcon::Disabled, false},
    Form{16, QIcon::Selected, false}, Form{16, QIcon::Normal, true},
    Form{32, QIcon::Normal, true},
};

constexpr int gap = 12;
constexpr int rowHeight = 64 + gap;
constexpr int labelWidth = 160;
constexpr int columns = 2; // for each ground

int cellWidth()
{
    int width = labelWidth + gap;
    for (const Form &form : forms)
        width += form.size + gap;
    return width;
}

void drawForm(QPainter &painter, const QRect &place, const QIcon &picture, QIcon::Mode mode)
{
    if (mode == QIcon::Selected)
        painter.fillRect(place.adjusted(-3, -3, 3, 3),
                         QGuiApplication::palette().color(QPalette::Highlight));
    picture.paint(&painter, place, Qt::AlignCenter, mode);
}

void drawRow(QPainter &painter, QPoint corner, const ImageList &list, const QString &key)
{
    int x = corner.x() + gap;
    for (const Form &form : forms) {
        const QRect place(x, corner.y() + (rowHeight - form.size) / 2, form.size, form.size);
        const QString shown = form.pressed ? Pictures::pressedKey(key) : key;
        drawForm(painter, place, list.Picture(shown), form.mode);
        x += form.size + gap;
    }
    painter.drawText(QRect(x, corner.y(), labelWidth, rowHeight), Qt::AlignVCenter,
                     u"%1  %2"_s.arg(list.IndexOf(key)).arg(key));
}

// Pressed pictures stand in the row of the picture they belong to.
QStringList rowsOf(const ImageList &list)
{
    QStringList rows = list.Keys();
    const QStringList keys = rows;
    for (const QString &key : keys)
        rows.removeAll(Pictures::pressedKey(key));
    return rows;
}

QImage sheet(const ImageList &list)
{
    const QStringList keys = rowsOf(list);
    const int rows = (static_cast<int>(keys.size()) + columns - 1) / columns;
    const int groundWidth = columns * cellWidth();
    QImage image(static_cast<int>(grounds.size()) * groundWidth, rows * rowHeight,
                 QImage::Format_RGB32);
    QPainter painter(&image);
    int left = 0;
    for (const Ground &ground : grounds) {
        painter.fillRect(left, 0, groundWidth, image.height(), QColor(ground.back));
        painter.setPen(QColor(ground.text));
        for (int i = 0; i < keys.size(); ++i)
            drawRow(painter, {left + i / rows * cellWidth(), i % rows * rowHeight}, list,
                    keys.at(i));
        left += groundWidth;
    }
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: orvt-pictures FILE.png\n";
        return 2;
    }
    ImageList list;
    Pictures::fillInto(list);
    if (!sheet(list).save(arguments.at(1))) {
        QTextStream(stderr) << "cannot write " << arguments.at(1) << '\n';
        return 1;
    }
    return 0;
}
