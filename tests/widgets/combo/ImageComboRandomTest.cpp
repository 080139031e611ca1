// A user and a program, whose handlers throw, at work on one combo, at random; after each
// step everything fits together.

#include "support/Disturbances.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include "widgets/combo/ImageComboFixture.h"

#include <QtGui/QKeySequence>

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

class Session final : public RandomSession
{
public:
    explicit Session(unsigned seed)
        : RandomSession(seed)
        , m_shown(randomTexts(m_random))
        , m_told(m_shown.combo)
    {
    }

private:
    void act() override
    {
        m_told.changes = m_told.clicks = 0;
        m_before = m_shown->text();
        m_losesFocus = false;
        m_isByUser = !oneIn(12);
        m_isByUser ? useCombo() : useProgram();
    }

    void type(QChar letter)
    {
        note(u"type "_s + letter);
        m_shown.type(letter);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        note(QKeySequence(modifiers | key).toString(QKeySequence::PortableText));
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
        switch (m_random.number(5)) {
        case 0:
            note(u"set entries"_s);
            m_shown->setEntries(ShownCombo::entriesOf(randomTexts(m_random)));
            break;
        case 1:
            note(u"set index"_s);
            m_shown->setSelectedIndex(m_random.number(m_shown->count() + 1));
            break;
        case 2:
            note(u"set text"_s);
            m_shown->setText(m_random.number(2) ? u"temp1"_s : u"host"_s);
            break;
        case 3:
            disturb();
            break;
        default:
            note(u"open or close"_s);
            m_shown->isListOpen() ? m_shown->hidePopup() : m_shown->showPopup();
        }
    }

    void disturb()
    {
        const QString what = m_disturbances.next(m_random);
        note(what);
        m_losesFocus = what == u"hidden" || what == u"disabled";
    }

    QString whatIsWrong() override
    {
        const qint32 selected = m_shown->selectedIndex();
        const QString text = m_shown->text();
        const int told = m_told.changes + m_told.clicks;
        if (selected != 0 && text != m_shown->entry(selected).text)
            return u"the text is not the selected entry's"_s;
        if (m_isByUser && text != m_before && told == 0)
            return u"the user's change of text was not told"_s;
        if (told > 1)
            return u"one step was told twice"_s;
        const bool mayConfirm = m_isByUser || m_losesFocus; // what the user has typed
        if (m_told.clicks > 0 && (selected == 0 || !mayConfirm))
            return u"Click without a choice"_s;
        if (m_told.changes > 0 && text == m_before && !m_isByUser) // who may type the same anew
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

    ShownCombo m_shown;
    Told m_told;
    ThrowingHost m_host{*m_shown.combo, 7, QComboBox::staticMetaObject};
    Disturbances m_disturbances{m_shown.form};
    QString m_before;
    bool m_isByUser = false;
    bool m_losesFocus = false;
};

} // namespace

class ImageComboRandomTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepLeavesTheComboInOrder()
    {
        const QString failure = failureIn<Session>(25, 7500);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
};

ORVT_TEST(ImageComboRandomTest)
#include "ImageComboRandomTest.moc"
