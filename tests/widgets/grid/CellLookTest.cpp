#include "support/PseudoTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/TextProvider.h>

#include <QtCore/QScopeGuard>
#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QProxyStyle>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A style whose animations last so long, in milliseconds.
class TimedStyle final : public QProxyStyle
{
public:
    explicit TimedStyle(int duration)
        : m_duration(duration)
    {
    }
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? m_duration
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }

private:
    const int m_duration;
};

class PaintedGrid : public ShownGrid
{
public:
    QImage picture(int row, int column) const
    {
        const QRect place = list->visualRect(list->model()->index(row - 1, column));
        return list->viewport()->grab(place).toImage();
    }
    QString spoken(int row, int column) const
    {
        return list->model()->index(row - 1, column).data(Qt::AccessibleTextRole).toString();
    }
};

// Where a picture has ink that is not ground: its first and last column.
std::pair<int, int> inkOf(const QImage &image)
{
    const QRgb ground = image.pixel(0, image.height() / 2);
    int first = -1;
    int last = -1;
    for (int x = 1; x < image.width() - 1; ++x) {
        for (int y = 1; y < image.height() - 1; ++y) {
            if (image.pixel(x, y) != ground) {
                first = first < 0 ? x : first;
                last = x;
            }
        }
    }
    return {first, last};
}

} // namespace

class CellLookTest : public WidgetTest
{
    Q_OBJECT

private:
    // As large as at 100 %.
    static QImage inPoints(const QImage &picture)
    {
        QImage scaled = picture.scaled(picture.deviceIndependentSize().toSize());
        scaled.setDevicePixelRatio(1);
        return scaled;
    }

private Q_SLOTS:
    void aStateIsSeenSpokenAndInTheToolTip()
    {
        PaintedGrid shown;
        shown.set(1, 2, u"21.5"_s);
        QList<QImage> pictures{shown.picture(1, 2)};
        const std::array states{CellState::Changed, CellState::Old, CellState::Manual,
                                CellState::Alarm};
        const std::array words{u"Changed"_s, u"Old"_s, u"By hand"_s, u"Alarm"_s};
        for (std::size_t i = 0; i < states.size(); ++i) {
            shown.grid->setCellState(shown.item(1), 2, states.at(i));
            QCOMPARE(shown.grid->cellState(shown.item(1), 2), states.at(i));
            QCOMPARE(shown.spoken(1, 2), u"21.5, "_s + words.at(i));
            QCOMPARE(shown->model()->index(0, 2).data(Qt::ToolTipRole).toString(), words.at(i));
            QCOMPARE(shown.text(1, 2), u"21.5"_s);
            const QImage picture = shown.picture(1, 2);
            QVERIFY(!pictures.contains(picture));
            pictures.append(picture);
        }
        shown.grid->setCellState(shown.item(1), 2, CellState::Plain);
        QCOMPARE(shown.picture(1, 2), pictures.first());
        QCOMPARE(shown.spoken(1, 2), QString());
    }

    void statesDifferWithoutTheirColours()
    {
        PaintedGrid shown;
        QList<QImage> pictures;
        for (const CellState state :
             {CellState::Changed, CellState::Old, CellState::Manual, CellState::Alarm}) {
            shown.grid->setCellState(shown.item(1), 2, state);
            pictures.append(
                shown.picture(1, 2).convertToFormat(QImage::Format_Mono, Qt::ThresholdDither));
        }
        for (qsizetype i = 0; i < pictures.size(); ++i)
            QCOMPARE(pictures.indexOf(pictures.at(i)), i);
    }

    void theWordIsThereWhereThereIsRoom()
    {
        PaintedGrid shown;
        shown.set(1, 1, u"x"_s);
        shown.grid->setCellState(shown.item(1), 1, CellState::Manual);
        const int narrow = inkOf(shown.picture(1, 1)).second;
        shown->setColumnWidth(1, 200);
        const int word = shown->fontMetrics().horizontalAdvance(u"By hand"_s);
        QVERIFY(inkOf(shown.picture(1, 1)).second > narrow + word / 2);
    }

    void aRowKeepsItsPictureBesideItsState()
    {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        PaintedGrid shown;
        shown->setPictureProvider([&red](const QString &) { return QIcon(red); });
        const auto reds = [&shown] {
            const QImage image = inPoints(shown.picture(1, 0));
            int first = -1;
            int count = 0;
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y) {
                    const bool isRed = image.pixelColor(x, y) == Qt::red;
                    first = isRed && first < 0 ? x : first;
                    count += isRed ? 1 : 0;
                }
            }
            return std::pair(first, count);
        };
        shown.item(1)->setPictureKey(u"red"_s);
        shown->fitColumns();
        const int fitting = shown->columnWidth(0);
        const QImage without = inPoints(shown.picture(1, 0));
        const std::pair own = reds();
        QCOMPARE(own.second, 16 * 16);
        shown.grid->setCellState(shown.item(1), 0, CellState::Manual);
        shown->fitColumns();
        QCOMPARE(reds(), own);
        QVERIFY(shown->columnWidth(0) >= fitting + 16);
        const QRect behind(own.first + 16, 0, 24, without.height());
        QVERIFY(inPoints(shown.picture(1, 0)).copy(behind) != without.copy(behind)); // the state's
        shown->setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(reds().first, shown->columnWidth(0) - own.first - 16);
    }

    void wordsFollowTheLanguage()
    {
        PaintedGrid shown;
        shown.set(1, 1, u"x"_s);
        shown->setColumnWidth(1, 200);
        shown.grid->setCellState(shown.item(1), 1, CellState::Manual);
        shown.goTo(2, 4);
        shown.key(Qt::Key_F2);
        const auto *box = shown.field<QCheckBox>();
        QVERIFY(box);
        QCOMPARE(box->text(), u"No"_s);
        QSignalSpy changed(shown->model(), &QAbstractItemModel::dataChanged);
        const QImage english = shown.picture(1, 1);
        PseudoTexts pseudo;
        const auto former = qScopeGuard([] { setTextProvider(nullptr); });
        setTextProvider(&pseudo);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&shown.form, &change);
        QCOMPARE(shown.spoken(1, 1), u"x, "_s + PseudoTexts::inBrackets(u"By hand"_s));
        QVERIFY(shown.picture(1, 1) != english);
        QCOMPARE(box->text(), PseudoTexts::inBrackets(u"No"_s));
        QVERIFY(!changed.isEmpty()); // for who has been told of the words
    }

    void aPointTableTellsItsCellsOfAnotherLanguage()
    {
        ORVListView table;
        table.setListviewType(dsInput);
        table.listView()->grid()->setCellState(table.ListItems()->Item(1), 1, CellState::Old);
        QSignalSpy changed(table.listView()->model(), &QAbstractItemModel::dataChanged);
        table.ReInitializeStrings();
        QVERIFY(!changed.isEmpty());
    }

    void aStateStaysWithItsRow()
    {
        PaintedGrid shown;
        shown.set(1, 1, u"b"_s);
        shown.set(2, 1, u"a"_s);
        shown.grid->setCellState(shown.item(1), 1, CellState::Alarm);
        shown.grid->setSortKeys({{1, Qt::AscendingOrder}});
        QCOMPARE(shown.spoken(2, 1), u"b, Alarm"_s);
        shown.grid->setFilterText(1, u"a"_s);
        shown.grid->setCellState(shown.item(1), 1, CellState::Old);
        QCOMPARE(shown.grid->cellState(shown.item(1), 1), CellState::Old);
    }

    void whatIsNotThereHasNoState()
    {
        PaintedGrid shown;
        shown.grid->setCellState(shown.item(1), 17, CellState::Alarm);
        shown.grid->setCellState(nullptr, 0, CellState::Alarm);
        QCOMPARE(shown.grid->cellState(shown.item(1), 17), CellState::Plain);
        QCOMPARE(shown.grid->cellState(nullptr, 1), CellState::Plain);
        ListItem *item = shown.item(1);
        shown->ListItems()->Remove(1);
        QCOMPARE(errorOf([&] { shown.grid->setCellState(item, 1, CellState::Old); }),
                 qint32(ObjectNotSet));
    }

    void aFitHasRoomForThePicture()
    {
        PaintedGrid shown;
        shown.set(1, 2, u"A rather long text, longer than its header"_s);
        shown->fitColumns();
        const int width = shown->columnWidth(2);
        shown.grid->setCellState(shown.item(1), 2, CellState::Alarm);
        shown->fitColumns();
        QVERIFY(shown->columnWidth(2) >=
                width + shown->style()->pixelMetric(QStyle::PM_SmallIconSize));
    }

    void numbersStandAtTheRightAsInTheCountry()
    {
        PaintedGrid shown;
        shown->setLocale(QLocale(QLocale::German));
        shown.set(1, 2, u"21.5"_s);
        shown.set(1, 1, u"21.5"_s);
        const QImage number = shown.picture(1, 2);
        const QImage text = shown.picture(1, 1);
        shown.grid->setShowsLocalNumbers(true);
        QCOMPARE(shown.text(1, 2), u"21.5"_s);
        QVERIFY(inkOf(number).first < 10 && inkOf(shown.picture(1, 2)).first > 20);
        QCOMPARE(shown.picture(1, 1), text);
        const QImage german = shown.picture(1, 2);
        shown->setLocale(QLocale::c());
        QVERIFY(shown.picture(1, 2) != german);
        shown.grid->setShowsLocalNumbers(false);
        QCOMPARE(shown.picture(1, 2), number);
    }

    void aChangeFlashesOnce()
    {
        PaintedGrid shown;
        TimedStyle style(50);
        shown->setStyle(&style);
        shown.set(1, 1, u"b"_s);
        shown.set(2, 1, u"c"_s);
        const QImage calm = shown.picture(1, 1);
        const QImage other = shown.picture(2, 1);
        shown.grid->setFlashesChanges(true);
        shown.set(1, 1, u"a"_s);
        shown.set(1, 1, u"b"_s);
        QVERIFY(shown.picture(1, 1) != calm);
        QCOMPARE(shown.picture(2, 1), other);
        QTRY_COMPARE(shown.picture(1, 1), calm);
        shown->setStyle(nullptr);
    }

    void nothingFlashesWithoutAnimations()
    {
        PaintedGrid shown;
        TimedStyle style(0);
        shown->setStyle(&style);
        shown.set(1, 1, u"b"_s);
        const QImage calm = shown.picture(1, 1);
        shown.grid->setFlashesChanges(true);
        shown.set(1, 1, u"a"_s);
        shown.set(1, 1, u"b"_s);
        QCOMPARE(shown.picture(1, 1), calm);
        shown->setStyle(nullptr);
    }
};

ORVT_TEST(CellLookTest)
#include "CellLookTest.moc"
