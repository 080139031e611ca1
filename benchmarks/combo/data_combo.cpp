// The data combo beside the toolkit's, with 30,000 points that each have a picture
// and a value: to fill it, to open it and to find a point by any part of its name,
// each until it is painted. The toolkit's has its items made all at once, and a
// completer that looks anywhere in them.

#include "support/keys.h"
#include "support/painting.h"
#include "support/points.h"
#include "support/report.h"

#include "base/ThreadState.h"
#include "widgets/combo/ImageCombo.h"
#include "widgets/look/Pictures.h"

#include <ORVTListview/ImageList.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QVBoxLayout>

#include <array>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int pointCount = 30'000;
constexpr int repetitions = 35;                  // of three keys each
const QString typedPart = QStringLiteral("mp1"); // of Temp1, Pump..., Damper...

double untilPainted(QWidget &painted, const std::function<void()> &work)
{
    PaintWatch watch(painted);
    return timed([&] {
        work();
        if (!watch.finishPainting())
            qFatal("the combo was not painted");
    });
}

class Ours
{
public:
    Ours()
    {
        for (int i = 0; i < pointCount; ++i)
            m_points.Add(pointName(i), i);
        m_tree.SetCollectionRenamable(nullptr, nullptr, nullptr, nullptr, &m_points, nullptr);
        auto *layout = new QVBoxLayout(&m_form);
        layout->addWidget(m_combo = new ORVDataCombo);
        layout->addStretch();
        showForBenchmark(m_form);
        inner().setFocus();
    }

    ImageCombo &inner() { return *m_combo->findChild<ImageCombo *>(u"ImageCombo1"_s); }
    int count() { return m_combo->ListCount(); }
    qint32 dataOf(int row) { return m_combo->ItemData(static_cast<qint16>(row)); }

    double fill()
    {
        return untilPainted(inner(), [this] {
            QString error;
            m_combo->FillDataListview(dsOutput, nullptr, error);
        });
    }
    double open()
    {
        const double cost =
            untilPainted(*inner().listView()->viewport(), [this] { inner().showPopup(); });
        inner().hidePopup();
        return cost;
    }
    double type(QChar letter)
    {
        return untilPainted(*inner().listView()->viewport(),
                            [this, letter] { sendKey(inner(), keyOf(letter)); });
    }
    int matches() { return inner().listView()->model()->rowCount(); }
    void take()
    {
        sendKey(inner(), {Qt::Key_Escape});
        QCoreApplication::processEvents();
    }

private:
    ThreadState::Fresh m_state;
    PointList m_points;
    ORVTreeview m_tree;
    QWidget m_form;
    ORVDataCombo *m_combo = nullptr;
};

class Theirs
{
public:
    Theirs()
    {
        Pictures::fillInto(m_images);
        for (int i = 0; i < pointCount; ++i)
            m_names.append(pointName(i));
        auto *layout = new QVBoxLayout(&m_form);
        layout->addWidget(m_combo = new QComboBox);
        layout->addStretch();
        m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_combo->setMinimumContentsLength(12);
        m_combo->setEditable(true);
        m_combo->setInsertPolicy(QComboBox::NoInsert);
        m_combo->completer()->setFilterMode(Qt::MatchContains);
        m_combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
        showForBenchmark(m_form);
        m_combo->setFocus();
    }

    int count() { return m_combo->count(); }
    qint32 dataOf(int row) { return m_combo->itemData(row).toInt(); }

    double fill()
    {
        m_combo->setModel(new QStandardItemModel(m_combo)); // the one before is gone
        return untilPainted(*m_combo, [this] {
            QList<QStandardItem *> items;
            items.reserve(pointCount);
            for (int i = 0; i < pointCount; ++i) {
                auto *item = new QStandardItem(m_images.Picture(69), m_names.at(i));
                item->setData(i, Qt::UserRole);
                items.append(item);
            }
            static_cast<QStandardItemModel *>(m_combo->model())
                ->invisibleRootItem()
                ->appendRows(items);
        });
    }
    double open()
    {
        const double cost =
            untilPainted(*m_combo->view()->viewport(), [this] { m_combo->showPopup(); });
        m_combo->hidePopup();
        return cost;
    }
    double type(QChar letter)
    {
        return untilPainted(*popup().viewport(),
                            [this, letter] { sendKey(*m_combo, keyOf(letter)); });
    }
    int matches() { return popup().model()->rowCount(); }
    void take()
    {
        popup().hide();
        m_combo->clearEditText();
        QCoreApplication::processEvents();
    }

private:
    QAbstractItemView &popup() { return *m_combo->completer()->popup(); }

    ImageList m_images;
    QStringList m_names;
    QWidget m_form;
    QComboBox *m_combo = nullptr;
};

struct Costs
{
    Times fill;
    Times open;
    Times keys;
};

template <typename Combo>
void measureOnce(Combo &combo, Costs &costs)
{
    costs.fill.add(combo.fill());
    combo.take();
    costs.open.add(combo.open());
    combo.take();
    for (const QChar letter : typedPart)
        costs.keys.add(combo.type(letter));
    combo.take();
}

void measure()
{
    Ours ours;
    Theirs theirs;
    Costs warmUp;
    measureOnce(ours, warmUp);
    measureOnce(theirs, warmUp);
    Costs our;
    Costs their;
    for (int i = 0; i < repetitions; ++i) {
        measureOnce(ours, our);
        measureOnce(theirs, their);
    }
    const auto print = [&](const QString &name, Times Costs::*times) {
        printRow({.name = name,
                  .ours = medianOf(u"data combo"_s, our.*times),
                  .peers = medianOf(u"combo box"_s, their.*times),
                  .bound = 1});
    };
    print(u"The combo is filled with 30,000 points"_s, &Costs::fill);
    print(u"It opens"_s, &Costs::open);
    print(u"A key that filters"_s, &Costs::keys);
    printRow({.name = u"… within which 99 of 100 keys are"_s,
              .ours = percentile99Of(u"data combo"_s, our.keys),
              .bound = 16 * milliseconds});
}

int namesHolding(const QString &part)
{
    int count = 0;
    for (int i = 0; i < pointCount; ++i)
        count += pointName(i).contains(part, Qt::CaseInsensitive) ? 1 : 0;
    return count;
}

template <typename Combo>
void checkCombo(const QString &name)
{
    Combo combo;
    combo.fill();
    checkEqual(u"all points are in the %1"_s.arg(name), combo.count(), pointCount);
    checkEqual(u"the last has its value in the %1"_s.arg(name), combo.dataOf(pointCount - 1),
               pointCount - 1);
    combo.take();
    QString typed;
    for (const QChar letter : typedPart) {
        typed += letter;
        combo.type(letter);
        checkEqual(u"%1 finds what holds %2"_s.arg(name, typed), combo.matches(),
                   namesHolding(typed));
    }
}

void checkWork()
{
    checkCombo<Ours>(u"data combo"_s);
    checkCombo<Theirs>(u"combo box"_s);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
