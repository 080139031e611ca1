#pragma once

#include "editor/rules/language/PopupWords.h"
#include "widgets/list/ListManner.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtGui/QFont>

class QRect;

namespace ORVTListview {

class ReportList;
class RichTextBox;
struct EditorThread;

// The list of known words beside the caret. The control's list view serves for it;
// the focus is in the box, which hands on the keys that move in the list. It follows
// its word on the screen, and closes when the word is out of sight or can no longer be
// typed.
class PopupWordList : public QObject
{
    Q_OBJECT

public:
    PopupWordList(ReportList &list, RichTextBox &box, const EditorThread &thread);

    // Gives the list the manner of a pop-up, or takes it away again. Without it the
    // list is the host's table, as the host has set it, and the words are discarded.
    void takeList();
    void giveListBack();
    bool hasList() const { return m_hasList; }

    // What the list gets back then.
    ListManner &tableManner() { return m_tableManner; }

    // Takes the words of the thread's index.
    void refill();

    // The same if the index has changed since. What is open stays as it is.
    void catchUp();
    const PopupWords &words() const { return m_words; }

    bool isShown() const;

    // Opens it for the word at the caret, which chooses the first entry with that
    // beginning; none for an empty word. The focus goes to the box. Where the user
    // cannot type it stays closed.
    void open();
    void close();

    // Whether the list acts on a key that comes while it is open.
    bool key(qint16 keyCode);

    // The caret or the text has changed.
    void follow();

Q_SIGNALS:
    void picked(const QString &word, qint32 colour);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool canStand() const;
    bool isWordInSight() const;
    void rememberTableManner();
    void choose(qsizetype place);
    void chooseForWord(const QString &word);
    void showFirst(int row);
    bool pickChosen();
    void move(qint16 keyCode);
    qsizetype chosen() const;
    int rowsShown() const;
    int wantedWidth();
    int widestRow() const;
    QRect wordOnScreen() const;
    void place();
    void placeSoon();
    void followOnScreen();

    ReportList &m_list;
    RichTextBox &m_box;
    const EditorThread &m_thread;
    PopupWords m_words;
    ListManner m_tableManner;
    bool m_hasList = false;
    quint64 m_taken = 0;    // the index's changes that are in the list
    qint32 m_wordStart = 0; // of the word that the list is open for
    QTimer m_placing;       // once for all that moves
    QFont m_measuredIn;
    int m_measured = 0; // the width of all texts in that font; 0 when it is not known
};

} // namespace ORVTListview
