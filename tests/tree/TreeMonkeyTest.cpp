// A user and a host at work on the project tree, at random, while the host's handlers
// throw, the tree is made anew and another process writes the settings. After each step
// each category is on the page where a simple model has it.

#include "tree/ProjectTree.h"

#include "shared/points/DisplayNames.h"
#include "support/Disturbances.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"

#include <QtCore/QProcess>
#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QLineEdit>

#include <optional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int mostPages = 5;
constexpr int types = 13;

class TreeSession final : public RandomSession
{
public:
    explicit TreeSession(unsigned seed)
        : RandomSession(seed)
        , m_pageOf(types, 0)
    {
        setSettingsFile(file());
        m_form.resize(300, 400);
        m_form.show();
        m_form.activateWindow();
        make();
    }
    ~TreeSession() override
    {
        m_host.reset();
        delete m_tree;
    }

private:
    using Act = void (TreeSession::*)();

    void act() override
    {
        static constexpr Act acts[] = {
            &TreeSession::moveByKey, &TreeSession::moveByKey, &TreeSession::moveByKey,
            &TreeSession::moveByKey, &TreeSession::select,    &TreeSession::select,
            &TreeSession::walk,      &TreeSession::walk,      &TreeSession::click,
            &TreeSession::click,     &TreeSession::fold,      &TreeSession::moveByHost,
            &TreeSession::addPoints, &TreeSession::colour,    &TreeSession::editLabel,
            &TreeSession::queueSome, &TreeSession::disturb,   &TreeSession::disturb,
            &TreeSession::makeAnew};
        (this->*oneOf(acts))();
        if (oneIn(3))
            QCoreApplication::processEvents();
        if (oneIn(400))
            letAnotherWrite();
    }

    QString file() const { return m_folder.path(u"settings"_s); }
    Node *node(const QString &key) const { return m_tree->Nodes()->Item(key); }
    Node *page(int number) const { return node(u"Page%1"_s.arg(number)); }
    QString someCategory() { return displayName(number(types)); }
    std::optional<int> selectedType() const
    {
        const Node *selected = m_tree->SelectedItem();
        for (int type = 0; selected && type < types; ++type) {
            if (selected->Key() == displayName(type))
                return type;
        }
        return std::nullopt;
    }

    void make()
    {
        m_tree = new ORVTreeview(&m_form);
        m_tree->setGeometry(5, 5, 280, 380);
        m_tree->show();
        m_view = m_tree->findChild<NodeTree *>();
        m_view->setFocus();
        m_host = std::make_unique<ThrowingHost>(*m_tree);
        m_tester = new QAbstractItemModelTester(
            m_view->model(), QAbstractItemModelTester::FailureReportingMode::Fatal, m_view);
        m_pages = 1 + *std::max_element(m_pageOf.cbegin(), m_pageOf.cend());
        m_points = 0;
    }
    // With events on their way to what is gone.
    void makeAnew()
    {
        note(u"make anew"_s);
        queueSome();
        m_host.reset();
        delete m_tree;
        QCoreApplication::processEvents();
        make();
    }
    // Who saves last is the tree.
    void letAnotherWrite()
    {
        note(u"another writes"_s);
        QProcess other;
        other.start(QStringLiteral(ORVT_TREE_HELPER), {file()});
        const bool hasWritten = other.waitForStarted() && other.waitForReadyRead();
        other.kill();
        other.waitForFinished();
        expect(hasWritten, u"no other process"_s);
        makeAnew();
    }

    // Which has the keys while it is open, on a folded page too.
    void leaveLabel()
    {
        for (QLineEdit *field : m_view->viewport()->findChildren<QLineEdit *>())
            QTest::keyClick(field, Qt::Key_Escape);
    }

    void moveByKey()
    {
        leaveLabel();
        const bool isUp = oneIn(2);
        note(isUp ? u"move up"_s : u"move down"_s);
        const std::optional<int> type = selectedType();
        QTest::keyClick(m_view, isUp ? Qt::Key_Up : Qt::Key_Down,
                        Qt::AltModifier | Qt::ShiftModifier);
        if (!type)
            return;
        int &place = m_pageOf[*type];
        const int before = place;
        if (isUp)
            place = std::max(0, place - 1);
        else if (place + 1 < m_pages || m_pages < mostPages)
            ++place;
        m_pages = std::max(m_pages, place + 1);
        expect(selectedType() == type, u"what was moved is not selected"_s);
        expect(place == before || page(place)->Expanded(), u"the page is folded"_s);
    }
    void moveByHost()
    {
        const int type = number(types);
        const int to = number(m_pages);
        note(u"host moves %1 to %2"_s.arg(type).arg(to));
        node(displayName(type))->setParent(page(to));
        m_pageOf[type] = to;
    }
    void select()
    {
        const QString key = someCategory();
        note(u"select "_s + key);
        m_tree->setSelectedItem(node(key));
        expect(m_tree->SelectedItem() == node(key), u"another node is selected"_s);
    }
    void walk()
    {
        static constexpr Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,     Qt::Key_Left,
                                           Qt::Key_Right, Qt::Key_Home,     Qt::Key_End,
                                           Qt::Key_I,     Qt::Key_Asterisk, Qt::Key_Space,
                                           Qt::Key_Plus,  Qt::Key_Minus,    Qt::Key_PageDown};
        const Qt::Key key = oneOf(keys);
        leaveLabel();
        note(QKeySequence(key).toString());
        QTest::keyClick(m_view, key);
    }
    void click()
    {
        const QPoint place(number(280), number(380));
        note(u"click %1 %2"_s.arg(place.x()).arg(place.y()));
        if (oneIn(3))
            QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(m_view->viewport(), oneIn(4) ? Qt::RightButton : Qt::LeftButton, {},
                              place);
    }
    void fold()
    {
        note(u"fold"_s);
        page(number(m_pages))->setExpanded(oneIn(2));
    }
    // What a host lists below a category goes with it.
    void addPoints()
    {
        note(u"add a point"_s);
        Nodes &nodes = *m_tree->Nodes();
        if (m_points > 0 && oneIn(3))
            nodes.Remove(u"point%1"_s.arg(m_points--));
        else
            nodes.Add(someCategory(), NodeRelationship::Child, u"point%1"_s.arg(++m_points),
                      u"a point"_s);
    }
    void colour()
    {
        const int type = number(types);
        note(u"colour %1"_s.arg(type));
        m_tree->SetNodeForeColor(static_cast<LwType>(type), 0x0000ff);
        expect(node(displayName(type))->ForeColor() == 0x0000ff, u"another colour"_s);
    }
    void editLabel()
    {
        leaveLabel();
        note(u"edit a label"_s);
        QTest::keyClick(m_view, Qt::Key_F2);
        if (auto *field = m_view->viewport()->findChild<QLineEdit *>()) {
            field->setText(u"label %1"_s.arg(number(9)));
            if (!oneIn(4))
                QTest::keyClick(field, oneIn(2) ? Qt::Key_Return : Qt::Key_Escape);
        }
    }
    void queueSome()
    {
        QWidget &port = *m_view->viewport();
        const QPoint place(number(200), number(300));
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const bool isDown = type == QEvent::MouseButtonPress;
            QCoreApplication::postEvent(
                &port, new QMouseEvent(type, place, port.mapToGlobal(place), Qt::LeftButton,
                                       isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
        }
    }
    void disturb() { note(m_disturbances.next(m_random)); }

    QString whatIsWrong() override
    {
        if (node(u"Device"_s)->Children() != m_pages)
            return u"%1 pages instead of %2"_s.arg(node(u"Device"_s)->Children()).arg(m_pages);
        for (int type = 0; type < types; ++type) {
            Node *category = node(displayName(type));
            if (category->Parent() != page(m_pageOf[type]))
                return u"%1 is on %2 instead of page %3"_s.arg(category->Key())
                    .arg(category->Parent() ? category->Parent()->Key() : u"none"_s)
                    .arg(m_pageOf[type]);
            if (m_tree->GetPageNumber(category) != m_pageOf[type])
                return u"the page of %1 is told wrongly"_s.arg(category->Key());
        }
        if (m_tree->Nodes()->Count() != 1 + m_pages + types + m_points)
            return u"%1 nodes"_s.arg(m_tree->Nodes()->Count());
        return {};
    }

    ThreadState::Fresh m_state;
    TestFolder m_folder;
    QList<int> m_pageOf;
    int m_pages = 1;
    int m_points = 0;
    QWidget m_form;
    ORVTreeview *m_tree = nullptr;
    NodeTree *m_view = nullptr;
    QAbstractItemModelTester *m_tester = nullptr;
    std::unique_ptr<ThrowingHost> m_host;
    Disturbances m_disturbances{m_form};
};

} // namespace

class TreeMonkeyTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeIsWhatTheModelIs() { runSessions<TreeSession>(40, 8000); }
};

ORVT_TEST(TreeMonkeyTest)
#include "TreeMonkeyTest.moc"
