// What the pop-up list of known words costs with 30,000 names: to open it, and the
// next letter while it is open, each until it is painted.

#include "editor/code_editor.h"
#include "support/keys.h"
#include "support/painting.h"
#include "support/points.h"
#include "support/report.h"

#include "base/ThreadState.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ReportList.h>

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype manyNames = 30'000;

class ManyWords
{
public:
    ManyWords()
    {
        for (qsizetype i = 0; i < manyNames; ++i)
            m_inputs.Add(pointName(i));
        m_tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &m_inputs, nullptr, nullptr);
        m_editor.setListviewType(dsCode);
        m_editor.Init_RichTextBox(appearance());
        showForBenchmark(m_editor);
        box().setFocus();
    }

    RichTextBox &box() { return *m_editor.RTextBox(); }
    ReportList &list() { return *m_editor.findChild<ReportList *>(u"ListView1"_s); }

    double timeOpening(const QString &beginning)
    {
        close();
        m_editor.setCodeText(beginning);
        box().setSelStart(box().TextLength());
        QCoreApplication::processEvents();
        PaintWatch watch(*list().viewport());
        return timed([&] {
            bool isShowAbsolutely = true; // a beginning may be a name by itself
            m_editor.TryToPopupList(isShowAbsolutely);
            if (!watch.finishPainting())
                qFatal("the list was not painted");
        });
    }

    double timeLetter(QChar letter)
    {
        PaintWatch watch(*box().viewport()); // the list stays as it is for the same entry
        return timed([&] {
            sendKey(box(), keyOf(letter));
            if (!watch.finishPainting())
                qFatal("the letter was not painted");
        });
    }

private:
    void close()
    {
        if (list().isVisible())
            m_editor.TryToPopupList();
        QCoreApplication::processEvents();
    }

    ThreadState::Fresh m_state;
    PointList m_inputs;
    ORVTreeview m_tree;
    ORVListView m_editor;
};

// An unfinished name, and the letter that comes next in it.
QString unfinished(qsizetype index)
{
    return pointName(index).chopped(2);
}

QChar nextLetter(qsizetype index)
{
    return pointName(index).at(pointName(index).size() - 2);
}

void checkWork()
{
    ManyWords words;
    words.timeOpening(unfinished(20'000));
    check(u"the list is open"_s, words.list().isVisible());
    words.timeLetter(nextLetter(20'000));
    const ListItem *chosen = words.list().SelectedItem();
    const QString typed = words.box().Text();
    check(u"the next letter chooses a name that begins so"_s,
          chosen && chosen->Text().startsWith(typed, Qt::CaseInsensitive),
          chosen ? chosen->Text() : QString());
}

void measure()
{
    ManyWords words;
    qsizetype name = 0;
    const auto next = [&name] { return name = (name + 7919) % manyNames; };
    printRow({.name = u"The word list of 30,000 names opens"_s,
              .ours = medianOf(u"our editor"_s,
                               repeated(41, [&] { return words.timeOpening(unfinished(next())); })),
              .bound = 50 * milliseconds});
    printRow({.name = u"The next letter in it"_s,
              .ours = medianOf(u"our editor"_s, repeated(41,
                                                         [&] {
                                                             const qsizetype at = next();
                                                             words.timeOpening(unfinished(at));
                                                             return words.timeLetter(
                                                                 nextLetter(at));
                                                         })),
              .bound = 16 * milliseconds});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
