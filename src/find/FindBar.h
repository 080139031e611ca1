#pragma once

#include "base/TextSearch.h"
#include "editor/view/EditorBar.h"

#include <QtGui/QTextCursor>

#include <functional>

class QBoxLayout;
class QComboBox;
class QLabel;
class QToolButton;

namespace ORVTListview {

class BoxSearch;
class FoundMarks;
class ReplaceRow;
class RichTextBox;
struct SearchHistories;

// Searches an editor as one types, marks all places and tells how many there are, and
// replaces as the find dialog does. The editor stays usable beside it. Histories and the
// last search are those of the thread (SearchHistories).
// Why it is so: docs/decisions/find.md.
class FindBar final : public EditorBar
{
    Q_OBJECT

public:
    // Go on with the last search from the selection.
    struct Acts
    {
        std::function<bool()> findNext;
        std::function<bool()> findPrevious;
    };

    FindBar(RichTextBox &box, FoundMarks &marks, const Acts &acts);
    ~FindBar() override;

    // With the selected text unless that goes over several lines, else with what was
    // searched for last. Nothing while the box is not on the screen.
    void ask();

protected:
    bool isOwnKey(const QKeyEvent &key) const override;
    void act(const QKeyEvent &key) override;
    void showTexts() override;
    void noteClosed() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    using Find = std::function<bool()> Acts::*;

    QToolButton *addButton(const QString &name, const QString &text, QBoxLayout &row);
    QLayout *makeSearchRow();
    QWidget *makeReplaceRow();
    void connectControls();

    QString searched() const;
    TextSearch how() const;
    void noteSearch();
    void search();
    void seek();
    void select(int from, int to);
    void find(Find act);
    bool beginReplacing(BoxSearch &search);
    void replace();
    void replaceAll();
    void followCaret();
    void noteReadOnly();
    void showReplaceRow(bool shown);

    void showWhatFits();
    void showCount();
    QString countText() const;
    void tell(const QString &result);

    RichTextBox &m_box;
    FoundMarks &m_marks;
    SearchHistories &m_histories;
    const Acts m_acts;
    QTextCursor m_origin; // where the user was before the search that is typed
    bool m_isSeeking = false;
    bool m_isSelecting = false;
    bool m_isToBeTold = false; // once all are counted

    QComboBox *m_wanted = nullptr;
    QToolButton *m_matchCase = nullptr;
    QToolButton *m_wholeWord = nullptr;
    QToolButton *m_previous = nullptr;
    QToolButton *m_next = nullptr;
    QLabel *m_result = nullptr;
    QToolButton *m_more = nullptr;
    QToolButton *m_close = nullptr;
    ReplaceRow *m_replaceRow = nullptr;
};

} // namespace ORVTListview
