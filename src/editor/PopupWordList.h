#pragma once

#include "editor/AllWords.h"
#include "editor/MatchingWords.h"
#include "editor/rules/language/PopupWords.h"
#include "widgets/list/ListManner.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

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
    ~PopupWordList() override;

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

    // The chosen entry over the list's whole width, on the screen; empty without one.
    QRect chosenOnScreen();

    // Opens it for the word at the caret, which chooses the first entry with that
    // beginning; none for an empty word. The focus goes to the box. Where the user
    // cannot type it stays closed.
    void open();
    void close();

    // Closes it for as long as the caret is in its word.
    void shut();

    // Whether it opens by itself. It then shows what holds the word, and not all words
    // with the one that begins so chosen.
    bool opensItself() const { return m_opensItself; }
    void setOpensItself(bool on);

    // What it then shows beside the words, by their names in any letter case.
    void setDescriptions(const QHash<QString, QString> &texts)
    {
        m_matching.setDescriptions(texts);
    }

    // Text was typed, which may have made the begin of a known word.
    void noteTyped();

    // Whether the list acts on a key that comes while it is open.
    bool key(qint16 keyCode);

    // The caret or the text has changed.
    void follow();

Q_SIGNALS:
    void picked(const QString &word, qint32 colour);

    // The open list stands somewhere, or somewhere else; and it is gone.
    void placed();
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    WordListFace &face();
    bool canStand() const;
    bool canOpenItself() const;
    void stand(const QString &word);
    void showFor(const QString &word);
    void watchBox(const QEvent &event);
    void forgetShut();
    bool isWordInSight() const;
    void rememberTableManner();
    bool pickChosen();
    void move(qint16 keyCode);
    int rowsShown();
    QRect wordOnScreen() const;
    void place();
    void placeSoon();
    void followOnScreen();

    ReportList &m_list;
    RichTextBox &m_box;
    const EditorThread &m_thread;
    PopupWords m_words;
    AllWords m_all;
    MatchingWords m_matching;
    ListManner m_tableManner;
    bool m_hasList = false;
    bool m_opensItself = false;
    bool m_isAsked = true;  // what is open was opened by the user or the host
    quint64 m_taken = 0;    // the index's changes that are in the list
    qint32 m_wordStart = 0; // of the word that the list is open for
    qint32 m_shutStart = 0; // of the word that it stays shut for; 0 for none
    QTimer m_placing;       // once for all that moves
};

} // namespace ORVTListview
