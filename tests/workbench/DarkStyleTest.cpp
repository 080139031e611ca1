// What the dark theme draws in its own way, in pixels.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/Luminance.h"
#include "workbench/settings/Theme.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <algorithm>

using namespace ORVTListview;

namespace {

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

// Of the pixels across the widget's middle with the window around it.
double bestContrast(QWidget &widget)
{
    const QImage picture = widget.grab().toImage();
    double best = 0;
    for (int x = 0; x < picture.width(); ++x)
        best = std::max(best, contrast(picture.pixelColor(x, picture.height() / 2),
                                       widget.palette().color(QPalette::Window)));
    return best;
}

// Of an edge with the ground inside of it and the window outside.
double edgeContrast(QWidget &widget)
{
    const QImage picture = widget.grab().toImage();
    const QColor edge = picture.pixelColor(picture.width() / 2, 0);
    return std::min(contrast(edge, widget.palette().color(QPalette::Window)),
                    contrast(edge, widget.palette().color(QPalette::Base)));
}

} // namespace

// Three to one, as for all that has to be seen to be used.
class DarkStyleTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useTheme(Theme::Dark); }
    void cleanup() { useTheme(Theme::System); }

    void boxesWithoutATickAreSeen()
    {
        QWidget form;
        QCheckBox check(&form);
        QRadioButton radio(&form);
        for (QWidget *button : {static_cast<QWidget *>(&check), static_cast<QWidget *>(&radio)}) {
            button->resize(40, 40);
            const double best = bestContrast(*button);
            QVERIFY2(best >= 3, qPrintable(QString::number(best)));
        }
    }

    void emptyFieldsAreSeen()
    {
        QWidget form;
        QLineEdit line(&form);
        QComboBox list(&form);
        QComboBox field(&form);
        field.setEditable(true);
        QSpinBox number(&form);
        for (QWidget *widget : {static_cast<QWidget *>(&line), static_cast<QWidget *>(&list),
                                static_cast<QWidget *>(&field), static_cast<QWidget *>(&number)}) {
            widget->resize(100, 24);
            const double found = edgeContrast(*widget);
            QVERIFY2(found >= 3, qPrintable(QString::number(found)));
        }
    }

    void theFieldThatIsWrittenInIsTold()
    {
        QWidget form;
        QLineEdit one(&form);
        QLineEdit other(&form);
        form.resize(200, 100);
        other.move(0, 50);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        one.setFocus();
        const auto edge = [](QLineEdit &line) {
            return line.grab().toImage().pixelColor(line.width() / 2, 0);
        };
        QVERIFY(edge(one) != edge(other));
        QVERIFY(edgeContrast(one) >= 3);
    }

    void whatHasNoFrameGetsNone()
    {
        QWidget form;
        QLineEdit line(&form);
        line.setFrame(false);
        line.resize(100, 24);
        QCOMPARE(line.grab().toImage().pixelColor(50, 0), line.palette().color(QPalette::Base));
    }
};

ORVT_TEST(DarkStyleTest)
#include "DarkStyleTest.moc"
