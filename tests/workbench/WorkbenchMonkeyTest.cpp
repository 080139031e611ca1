// Somebody plays with the whole workbench: any key, any click, any command, at random,
// while other processes write its files. After each step what is shown, marked as
// changed and saved fits together.

#include "project/ProjectDocument.h"
#include "support/Disturbances.h"
#include "support/RandomSession.h"
#include "support/TestProgram.h"
#include "workbench/WorkbenchTest.h"
#include "workbench/help/FirstSteps.h"

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray program = "IF Temp1 > 20\r\n    Fan1 = ON\r\nELSE\r\n    Fan1 = OFF\r\nENDIF\r\n";

// Answers whatever asks in the middle of a step, in one way or the other.
class Answers : public QObject
{
public:
    Answers()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { answer(); });
        m_timer.start(0);
    }

private:
    void answer()
    {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->buttons().at(m_answers++ % box->buttons().size())->click();
        else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
    }

    QTimer m_timer;
    qsizetype m_answers = 0;
};

class WorkbenchSession final : public RandomSession
{
public:
    explicit WorkbenchSession(unsigned seed)
        : RandomSession(seed)
    {
    }

private:
    using Act = void (WorkbenchSession::*)();

    void act() override
    {
        static constexpr Act acts[] = {
            &WorkbenchSession::type,           &WorkbenchSession::type,
            &WorkbenchSession::type,           &WorkbenchSession::pressKey,
            &WorkbenchSession::pressKey,       &WorkbenchSession::pressKey,
            &WorkbenchSession::click,          &WorkbenchSession::click,
            &WorkbenchSession::click,          &WorkbenchSession::command,
            &WorkbenchSession::command,        &WorkbenchSession::showType,
            &WorkbenchSession::goToProgram,    &WorkbenchSession::goToProgram,
            &WorkbenchSession::changeLanguage, &WorkbenchSession::dragOver,
            &WorkbenchSession::save,           &WorkbenchSession::writeElsewhere,
            &WorkbenchSession::openAnother,    &WorkbenchSession::paste,
            &WorkbenchSession::disturb,        &WorkbenchSession::disturb};
        (this->*oneOf(acts))();
        QCoreApplication::processEvents();
        if (!m_workbench.window.isVisible())
            m_workbench.window.show(); // was closed
        if (!hasProject())
            openAnother(); // it was, too
        if (m_workbench.code().CodeText().size() > 20'000)
            m_workbench.code().Clear();
    }

    MainWindow &window() { return m_workbench.window; }
    bool hasProject() { return window().findChild<ProjectDocument *>()->project() != nullptr; }

    // Where the keys go, or any other widget.
    QWidget &someWidget()
    {
        if (oneIn(2) && QApplication::focusWidget())
            return *QApplication::focusWidget();
        QList<QWidget *> all = window().findChildren<QWidget *>();
        all.removeIf([](const QWidget *widget) { return !widget->isVisible(); });
        return all.isEmpty() ? window() : *oneOf(all);
    }
    void type()
    {
        static const QStringList words{u"if "_s, u"Temp1 "_s, u"fan1"_s,  u" = "_s,
                                       u"12"_s,  u"("_s,      u"endif"_s, u"rem "_s,
                                       u"x"_s,   u"  "_s,     u")"_s};
        const QString word = oneOf(words);
        note(u"type "_s + word);
        const QPointer<QWidget> widget(&someWidget());
        for (const QChar letter : word) {
            if (widget)
                QTest::keyClick(widget, letter.toLatin1());
        }
    }
    void pressKey()
    {
        static constexpr Qt::Key keys[] = {
            Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right, Qt::Key_Return,
            Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp,
            Qt::Key_Tab,    Qt::Key_Space,  Qt::Key_F1,   Qt::Key_F2,    Qt::Key_F3,
            Qt::Key_F4,     Qt::Key_F6,     Qt::Key_Z,    Qt::Key_Y,     Qt::Key_X,
            Qt::Key_V,      Qt::Key_A,      Qt::Key_F,    Qt::Key_H,     Qt::Key_G,
            Qt::Key_Slash,  Qt::Key_D,      Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Backspace};
        static constexpr Qt::KeyboardModifiers held[] = {Qt::NoModifier,
                                                         Qt::NoModifier,
                                                         Qt::NoModifier,
                                                         Qt::ControlModifier,
                                                         Qt::ControlModifier,
                                                         Qt::AltModifier,
                                                         Qt::ShiftModifier,
                                                         Qt::ControlModifier | Qt::ShiftModifier,
                                                         Qt::AltModifier | Qt::ShiftModifier};
        const Qt::Key key = oneOf(keys);
        const Qt::KeyboardModifiers with = oneOf(held);
        note(QKeySequence(with | key).toString());
        QTest::keyClick(&someWidget(), key, with);
    }
    void click()
    {
        static constexpr Qt::MouseButton buttons[] = {
            Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
        QWidget &widget = someWidget();
        const QPoint place(number(std::max(1, widget.width())),
                           number(std::max(1, widget.height())));
        note(u"click %1 %2 %3"_s.arg(QString::fromLatin1(widget.metaObject()->className()))
                 .arg(place.x())
                 .arg(place.y()));
        if (oneIn(5))
            QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
        else
            QTest::mouseClick(&widget, oneOf(buttons), {}, place);
    }
    void command()
    {
        QList<QAction *> all;
        for (const QMenu *menu : m_workbench.menus())
            all += menu->actions();
        all.removeIf([](const QAction *action) { return action->isSeparator() || action->menu(); });
        QAction *action = oneOf(all);
        note(u"choose "_s + action->text());
        const QString before = m_workbench.code().CodeText();
        action->trigger();
        if (auto *page = window().findChild<FirstSteps *>(); page && page->isVisible())
            QTest::keyClick(page, Qt::Key_Escape); // back to the project
        noteSaving(before);
    }
    void showType()
    {
        const auto type = static_cast<LwType>(number(13));
        note(u"show %1"_s.arg(type));
        window().showType(type);
        expect(m_workbench.shown().ListviewType() == type, u"another type is shown"_s);
    }
    void goToProgram()
    {
        note(u"program"_s);
        window().showType(dsCode);
        m_workbench.box().setFocus();
    }
    void changeLanguage()
    {
        const QList<QLocale> languages = Languages::available();
        const QLocale language = oneOf(languages);
        note(u"speak "_s + language.name());
        m_workbench.speak(language);
    }
    void dragOver()
    {
        note(u"drag"_s);
        QMimeData data;
        data.setText(u"Temp1"_s);
        const QPointer<QWidget> widget(&someWidget());
        const QPoint place = widget->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget, &enter);
        QDragLeaveEvent leave;
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        if (widget && oneIn(2))
            QCoreApplication::sendEvent(widget, &drop);
        else if (widget)
            QCoreApplication::sendEvent(widget, &leave);
    }
    void paste()
    {
        note(u"paste"_s);
        QGuiApplication::clipboard()->setText(oneIn(4) ? u"a\\b"_s : u"Temp1 = 2\nrem c"_s);
        QTest::keyClick(&someWidget(), Qt::Key_V, Qt::ControlModifier);
    }
    void save()
    {
        note(u"save"_s);
        const QString before = m_workbench.code().CodeText();
        m_workbench.choose(saveCaption());
        noteSaving(before);
    }
    // In whatever language.
    QString saveCaption()
    {
        for (const QAction *action : m_workbench.menus().first()->actions()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Save))
                return action->text().remove(u'&');
        }
        return {};
    }
    // A saved program is what was shown then.
    void noteSaving(const QString &before)
    {
        if (hasProject() && !window().isWindowModified() && before == m_workbench.code().CodeText())
            expect(isSaved(), u"nothing is marked, and the file is another one"_s);
    }
    bool isSaved()
    {
        if (m_isWrittenElsewhere)
            return true; // and is asked for at the next saving
        const QString name = m_project % 2 == 0 ? u"one"_s : u"two"_s;
        // What was not touched keeps the letter case of the file.
        const QString saved = decodeProgram(m_workbench.saved(name), name);
        return saved.compare(m_workbench.code().CodeText(), Qt::CaseInsensitive) == 0;
    }
    void writeElsewhere()
    {
        note(u"written elsewhere"_s);
        const QString name = m_project % 2 == 0 ? u"one.prog"_s : u"two.prog"_s;
        writeFile(m_workbench.folder.filePath(name), "x\r\n");
        writeFile(m_workbench.folder.filePath(u"settings.ini"_s), "[damaged\n=\0x");
        m_isWrittenElsewhere = true;
    }
    void openAnother()
    {
        note(u"open"_s);
        ++m_project;
        const QString name = m_project % 2 == 0 ? u"one"_s : u"two"_s;
        window().openProject(m_workbench.writeProject(name, program));
        m_isWrittenElsewhere = false;
        expect(!window().isWindowModified(), u"a program that was opened is marked"_s);
        expect(isSaved(), u"another program is shown"_s);
    }
    void disturb() { note(m_disturbances.next(m_random)); }

    QString whatIsWrong() override
    {
        if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
            return u"something is left open"_s;
        if (!window().isWindowModified() && !isSaved())
            return u"a change is not marked"_s;
        if (m_workbench.code().ListviewType() != dsCode)
            return u"the program has become a table"_s;
        if ((m_workbench.shown().ListviewType() == dsCode) == !!m_workbench.views().currentTable())
            return u"commands are for another view than the current one"_s;
        if (m_workbench.views().isVisible() && !m_workbench.shown().isVisible())
            return u"the current view is not seen"_s;
        if (window().menuBar()->actions().size() < 5)
            return u"a menu is missing"_s;
        return {};
    }

    ThreadState::Fresh m_state;
    Answers m_answers;
    WorkbenchWindow m_workbench{program};
    Disturbances m_disturbances{m_workbench.window};
    int m_project = 0;
    bool m_isWrittenElsewhere = false;
};

} // namespace

class WorkbenchMonkeyTest : public ThrowingHostTest
{
    Q_OBJECT

private Q_SLOTS:
    // Without the toolkit's cache, which would keep a name for each part of a style in each
    // palette and font, and hide what else grows: docs/decisions/tests.md.
    void everythingFitsTogether()
    {
        QPixmapCache::setCacheLimit(0);
        const QString failure = failureIn<WorkbenchSession>(20, 3000);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
    }
};

ORVT_TEST(WorkbenchMonkeyTest)
#include "WorkbenchMonkeyTest.moc"
