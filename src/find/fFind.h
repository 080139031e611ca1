#pragma once

#include "find/BoxSearch.h"

#include <QtWidgets/QDialog>

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QStatusBar;

namespace ORVTListview {

class SearchHistory;
struct SearchHistories;

// The dialog that searches a rich-text box and replaces in it. Nothing in it depends
// on being modal. It closes when the box is hidden or destroyed. What was searched
// for and replaced by is shared by the whole thread (SearchHistories).
//
// Its controls have the names lbl0, lbl1, Cbo0, Cbo1, Cmd0 to Cmd3, Chk0, Chk1,
// Frame1 and StatusBar1.
class fFind : public QDialog
{
    Q_OBJECT

public:
    // The histories outlive the dialog.
    explicit fFind(SearchHistories &histories);
    ~fFind() override;

    // Sets the dialog up for a box, as at every opening: the search begins one
    // character behind the start of the selection, no option is checked, and the
    // search text is the selected text unless that goes over several lines. Does not
    // show the dialog. The box is kept by reference.
    void Open(RichTextBox &Target, bool IsReplace);

    bool isReplaceMode() const { return m_mode == Mode::Replace; }

    // Applies the texts of the language in force, and does so after asking for new
    // ones. What the user typed stays.
    void InitStrings();
    void ReInitializeStrings();

    void done(int result) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    enum class Mode { None, Find, Replace };
    using Action = void (fFind::*)();
    using Result = std::function<QString()>; // in the language in force

    void makeControls();
    void layOut();
    QLayout *buttonColumn();
    void connectControls();
    void watch(RichTextBox &target);
    void unwatch();

    void setMode(Mode mode);
    void showMode();
    void arrange();
    void reserveWidths();
    int statusWidth() const;

    void run(Action action);
    void findNext();
    void rememberSearch();
    void replace();
    void replaceAll();
    void tell(const Result &result);
    void showResult();
    void fill(QComboBox &combo, SearchHistory &history, const QString &text);
    QString searched() const;
    void noteReadOnly();
    void stayClear();

    SearchHistories &m_histories;
    BoxSearch m_search;
    Mode m_mode = Mode::None;
    bool m_isPlaced = false; // since it was last shown
    Result m_result;         // what the status bar shows; empty for nothing

    std::array<QLabel *, 2> m_lbl{};
    std::array<QComboBox *, 2> m_Cbo{};
    std::array<QPushButton *, 4> m_Cmd{};
    std::array<QCheckBox *, 2> m_Chk{};
    QFrame *m_Frame1 = nullptr;
    QStatusBar *m_StatusBar1 = nullptr;
    QGridLayout *m_fields = nullptr;
    std::array<QString, 2> m_replaceCaptions; // of Cmd2, without and with the fields
};

} // namespace ORVTListview
