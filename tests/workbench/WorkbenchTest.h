#pragma once

#include "project/TextFile.h"
#include "support/WidgetTest.h"
#include "workbench/LanguageMenu.h"
#include "workbench/Languages.h"
#include "workbench/MainWindow.h"
#include "workbench/ProjectView.h"

#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTreeView>

#include <functional>

// A shown workbench on a project of the test's own.
struct WorkbenchWindow
{
    explicit WorkbenchWindow(const QByteArray &program = {})
    {
        QGuiApplication::clipboard()->clear();
        window.openProject(writeProject(QStringLiteral("one"), program));
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(box().hasFocus());
    }

    QString writeProject(const QString &name, const QByteArray &program)
    {
        ORVTListview::writeFile(folder.filePath(name + QStringLiteral(".prog")), program);
        const QString project = folder.filePath(name + QStringLiteral(".json"));
        ORVTListview::writeFile(project, R"({"format": 1, "name": ")" + name.toUtf8() +
                                             R"(", "program": ")" + name.toUtf8() +
                                             R"(.prog", "inputs": [{"name": "Temp1"}],
                                             "outputs": [{"name": "Fan1"}]})");
        return project;
    }
    QByteArray saved(const QString &name = QStringLiteral("one")) const
    {
        return ORVTListview::readFile(folder.filePath(name + QStringLiteral(".prog")));
    }

    ORVTListview::ProjectView &views() { return *window.findChild<ORVTListview::ProjectView *>(); }
    ORVTListview::ORVListView &code() { return views().program(); }

    // The program or the table that is used, or was used last.
    ORVTListview::ORVListView &shown() { return views().current(); }
    ORVTListview::RichTextBox &box() { return *code().RTextBox(); }
    QTreeView &results()
    {
        return *window.findChild<QDockWidget *>(QStringLiteral("CheckResults"))
                    ->findChild<QTreeView *>();
    }
    void type(const QString &text) { QTest::keyClicks(&box(), text); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&box(), key, modifiers);
    }

    void speak(const QLocale &language)
    {
        languages.setLanguage(language);
        QCoreApplication::processEvents();
    }

    QList<QMenu *> menus() const
    {
        QList<QMenu *> menus;
        for (const QAction *action : window.menuBar()->actions())
            menus.append(action->menu());
        return menus;
    }
    // By its caption without the access key's mark.
    QAction *command(const QString &caption) const
    {
        for (const QMenu *menu : menus()) {
            for (QAction *action : menu->actions()) {
                if (action->text().remove(u'&') == caption)
                    return action;
            }
        }
        return nullptr;
    }
    void choose(const QString &caption) { command(caption)->trigger(); }

    // Each text of the status bar, as "one.prog, lines: 1|Row: 1, Col: 1".
    QString statusTexts() const
    {
        QStringList texts;
        for (const QLabel *label : window.statusBar()->findChildren<QLabel *>()) {
            if (!label->text().isEmpty())
                texts.append(label->text());
        }
        return texts.join(u'|');
    }
    // Each row's cells, as "2 IF Reserved word|...".
    QString resultTexts()
    {
        const QAbstractItemModel &model = *results().model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells.append(model.index(row, column).data().toString());
            rows.append(cells.join(u' '));
        }
        return rows.join(u'|');
    }

    struct Settings // of the tests' own; there before the window
    {
        explicit Settings(const QString &file) { ORVTListview::setSettingsFile(file); }
    };

    struct DataFolder // where locks and recovery files go; the user's own is left alone
    {
        explicit DataFolder(const QString &folder) { qputenv("XDG_DATA_HOME", folder.toUtf8()); }
    };

    QTemporaryDir folder;
    DataFolder data{folder.filePath(QStringLiteral("data"))};
    Settings settings{folder.filePath(QStringLiteral("settings.ini"))};
    ORVTListview::Languages languages{QLocale(QLocale::English)};
    ORVTListview::MainWindow window{languages};
};

// Answers the next dialog that is shown modally, and keeps what it said.
template <typename Dialog>
class NextDialog : public QObject
{
public:
    using Answer = std::function<void(Dialog &)>;

    explicit NextDialog(Answer answer)
        : m_answer(std::move(answer))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
                m_timer.stop();
                m_answer(*dialog);
            }
        });
        m_timer.start(0);
    }
    bool wasThere() const { return !m_timer.isActive(); }

private:
    Answer m_answer;
    QTimer m_timer;
};

class NextMessage
{
public:
    explicit NextMessage(QMessageBox::StandardButton answer)
        : m_dialog([this, answer](QMessageBox &box) {
            m_text = box.text();
            QCOMPARE(box.textFormat(), Qt::PlainText); // it may hold any name
            box.button(answer)->click();
        })
    {
    }
    bool wasThere() const { return m_dialog.wasThere(); }
    QString text() const { return m_text; }

private:
    QString m_text;
    NextDialog<QMessageBox> m_dialog;
};
