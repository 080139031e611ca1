#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class CodeView;
class PaperColours;
class ORVListView;
class ProjectHistory;
class ProjectView;

// What the editor offers a host's menu. Its commands can be chosen while the program is the
// current view and they have something to do; the keys beside them are the editor's own.
class EditMenu : public QMenu
{
    Q_OBJECT

public:
    // Both outlive the menu.
    EditMenu(const ProjectView &views, ProjectHistory &history, const PaperColours &paper,
             QWidget *parent);

    void refresh();

Q_SIGNALS:
    // A command has been carried out, and the caret may have moved.
    void acted();

    // A command was without effect or went wrong.
    void told(const QString &text);

private:
    QAction *add(const QString &text, const QKeySequence &keys, void (EditMenu::*command)());
    void addHistory();
    void addClipboard();
    void addFinding();
    void addCommands();
    void undo();
    void redo();
    void restoreTypedText();
    void cut();
    void copy();
    void copyColoured();
    void paste();
    void selectAll();
    void showKnownWords();
    void tellUnless(bool isFound);
    ORVListView &code() const;
    CodeView &codeView() const;
    void find();
    void replace();

    const ProjectView &m_views;
    const PaperColours &m_paper;
    ProjectHistory &m_history;
    bool m_hasRestored = false; // something, since the last time there was nothing
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_colouredCopy = nullptr;
    QAction *m_paste = nullptr;
};

} // namespace ORVTListview
