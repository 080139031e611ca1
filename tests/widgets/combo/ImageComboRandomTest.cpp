// A user and a program at work on one combo, at random; after each step everything
// fits together.

#include "support/RandomSeed.h"
#include "support/RandomText.h"
#include "support/Shrunk.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/combo/ImageComboFixture.h"

#include <QtGui/QKeySequence>

#include <algorithm>
#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QStringList randomTexts(RandomText &random)
{
    QStringList texts;
    for (int count = random.number(60); count > 0; --count)
        texts.append(
            u"%1%2"_s.arg(random.number(2) ? u"Temp"_s : u"tEmpty"_s).arg(random.number(12)));
    return texts;
}

// What the combo has told of.
struct Told
{
    explicit Told(ImageCombo *combo)
    {
        QObject::connect(combo, &ImageCombo::Change, combo, [this] { ++changes; });
        QObject::connect(combo, &ImageCombo::Click, combo, [this] { ++clicks; });
    }

    int changes = 0;
    int clicks = 0;
};

class Session
{
public:
    explicit Session(unsigned seed)
        : m_random(seed)
        , m_shown(randomTexts(m_random))
        , m_told(m_shown.combo)
    {
    }

    // What is wrong after the first of these steps, each a seed, that leaves anything
    // wrong; empty when none does.
    QString take(const std::vector<unsigned> &steps)
    {
        for (const unsigned step : steps) {
            m_random = RandomText(step);
            const QString wrong = take();
            if (!wrong.isEmpty())
                return wrong;
        }
        return {};
    }

    QString done() const { return m_done.join(u", "_s); }

private:
    QString take()
    {
        m_told.changes = m_told.clicks = 0;
        const QString before = m_shown->text();
        const bool byUser = m_random.number(12) > 0;
        byUser ? useCombo() : useProgram();
        return wrong(before, byUser);
    }

    void type(QChar letter)
    {
        m_done.append(u"type "_s + letter);
        m_shown.type(letter);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        m_done.append(QKeySequence(modifiers | key).toString(QKeySequence::PortableText));
        m_shown.key(key, modifiers);
    }

    void useCombo()
    {
        static const QList<Qt::Key> keys{Qt::Key_Up,        Qt::Key_Down,   Qt::Key_PageDown,
                                         Qt::Key_PageUp,    Qt::Key_Return, Qt::Key_Escape,
                                         Qt::Key_F4,        Qt::Key_Home,   Qt::Key_End,
                                         Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab};
        static const QString letters = u"temp01y"_s;
        if (!m_shown->hasFocus())
            m_shown->setFocus(Qt::TabFocusReason);
        if (m_random.number(2) == 0)
            type(letters.at(m_random.number(static_cast<int>(letters.size()))));
        else if (m_random.number(12) == 0)
            press(Qt::Key_A, Qt::ControlModifier);
        else
            press(keys.at(m_random.number(static_cast<int>(keys.size()))));
    }

    void useProgram()
    {
        switch (m_random.number(4)) {
        case 0:
            m_done.append(u"set entries"_s);
            m_shown->setEntries(ShownCombo::entriesOf(randomTexts(m_random)));
            break;
        case 1:
            m_done.append(u"set index"_s);
            m_shown->setSelectedIndex(m_random.number(m_shown->count() + 1));
            break;
        case 2:
            m_done.append(u"set text"_s);
            m_shown->setText(m_random.number(2) ? u"temp1"_s : u"host"_s);
            break;
        default:
            m_done.append(u"open or close"_s);
            m_shown->isListOpen() ? m_shown->hidePopup() : m_shown->showPopup();
        }
    }

    QString wrong(const QString &before, bool byUser) const
    {
        const qint32 selected = m_shown->selectedIndex();
        const QString text = m_shown->text();
        const int told = m_told.changes + m_told.clicks;
        if (selected != 0 && text != m_shown->entry(selected).text)
            return u"the text is not the selected entry's"_s;
        if (byUser && text != before && told == 0)
            return u"the user's change of text was not told"_s;
        if (told > 1)
            return u"one step was told twice"_s;
        if (m_told.clicks > 0 && (selected == 0 || !byUser))
            return u"Click without a choice"_s;
        if (m_told.changes > 0 && text == before && !byUser) // who may type the same anew
            return u"Change without a change"_s;
        return wrongInList(text, selected);
    }

    QString wrongInList(const QString &text, qint32 selected) const
    {
        if (!m_shown->isListOpen())
            return QApplication::activePopupWidget() ? u"a list was left behind"_s : QString();
        QStringList all;
        QStringList matching;
        for (qint32 index = 1; index <= m_shown->count(); ++index) {
            all.append(m_shown->entry(index).text);
            if (all.last().contains(text, Qt::CaseInsensitive))
                matching.append(all.last());
        }
        const QStringList listed = m_shown.listed();
        if (listed != all && (selected != 0 || listed != matching))
            return u"the list shows something else"_s;
        return listed.isEmpty() ? u"an empty list is open"_s : QString();
    }

    RandomText m_random;
    ShownCombo m_shown;
    Told m_told;
    QStringList m_done;
};

} // namespace

class ImageComboRandomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepLeavesTheComboInOrder()
    {
        std::mt19937 random(randomSeed());
        std::vector<unsigned> steps(static_cast<std::size_t>(randomSteps(300)));
        for (int i = 0; i < 25; ++i) {
            const auto seed = static_cast<unsigned>(random());
            std::generate(steps.begin(), steps.end(), std::ref(random));
            const auto fails = [seed](const std::vector<unsigned> &some) {
                return !Session(seed).take(some).isEmpty();
            };
            if (!fails(steps))
                continue;
            Session session(seed);
            const QString wrong = session.take(shrunk(steps, fails));
            QFAIL(qPrintable(wrong + u" after: "_s + session.done()));
        }
    }
};

ORVT_TEST(ImageComboRandomTest)
#include "ImageComboRandomTest.moc"
