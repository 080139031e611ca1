// Another process for the test of kills: a workbench in which somebody works without a
// pause. It opens the project that is its argument, restores what was left, types numbered
// lines, renames the first input, and saves. Tells on standard output, a line each:
//
//   begun N K    the program ends with line N, the input is NameK
//   kept N K     so much is safe, in the recovery file or saved

#include "project/ProjectDocument.h"
#include "workbench/Languages.h"
#include "workbench/MainWindow.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryDialog.h"
#include "workbench/saving/RecoveryKeeper.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

#include <chrono>
#include <random>

using namespace ORVTListview;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

class Worker
{
public:
    Worker(const QString &project, unsigned seed)
        : m_random(seed)
        , m_box(*m_window.findChild<ORVListView *>(u"Program"_s)->RTextBox())
        , m_document(*m_window.findChild<ProjectDocument *>())
    {
        auto *keeper = m_window.findChild<RecoveryKeeper *>();
        keeper->setInterval(30ms);
        QTimer *answer = &m_answer;
        QObject::connect(answer, &QTimer::timeout, [this] { answerDialogs(); });
        answer->start(0);
        m_window.show();
        m_window.openForUser(project);
        m_line = lineOf(m_document.program(1));
        m_name = nameOf(m_document.project()->rows(dsInput).at(0).name);
        tell(u"begun"_s, now());
        QObject::connect(keeper, &RecoveryKeeper::keeping, [this] { m_keeping = now(); });
        QObject::connect(keeper, &RecoveryKeeper::kept, [this] { tell(u"kept"_s, m_keeping); });
        QObject::connect(m_window.findChild<ProjectSaving *>(), &ProjectSaving::settled,
                         [this] { tell(u"kept"_s, now()); });
        QObject::connect(&m_work, &QTimer::timeout, [this] { work(); });
        m_work.start(0);
    }

private:
    static int lineOf(const QString &program)
    {
        return program.sliced(program.lastIndexOf(u'x') + 1).trimmed().toInt();
    }
    static int nameOf(const QString &name) { return name.sliced(4).toInt(); }

    QString now() const { return u"%1 %2"_s.arg(m_line).arg(m_name); }

    static void tell(const QString &what, const QString &state)
    {
        QTextStream(stdout) << what << ' ' << state << Qt::endl;
    }

    static void answerDialogs()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (auto *rename = qobject_cast<RenameDialog *>(dialog))
            rename->accept();
        if (auto *left = qobject_cast<RecoveryDialog *>(dialog))
            left->findChild<QPushButton *>()->click(); // the first one restores
    }

    void key(int key, const QString &text)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&m_box, &press);
    }

    void work()
    {
        switch (m_random() % 12) {
        case 0:
            m_window.findChild<PointRenaming *>()->rename(dsInput, 0,
                                                          u"Name"_s + QString::number(m_name + 1));
            ++m_name;
            return;
        case 1:
            m_window.findChild<ProjectSaving *>()->save();
            return;
        default:
            m_box.setSelStart(m_box.TextLength());
            key(Qt::Key_Return, u"\r"_s);
            for (const QChar c : u"x"_s + QString::number(m_line + 1))
                key(c.toUpper().unicode(), c);
            ++m_line;
        }
    }

    std::mt19937 m_random;
    Languages m_languages{QLocale(QLocale::English)};
    MainWindow m_window{m_languages};
    RichTextBox &m_box;
    ProjectDocument &m_document;
    QTimer m_answer;
    QTimer m_work;
    int m_line = 0;
    int m_name = 0;
    QString m_keeping; // on its way into the recovery file
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const Worker worker(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]).toUInt());
    return QApplication::exec();
}
