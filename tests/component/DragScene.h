#pragma once

#include <ORVTListview/ORVTListview.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QWidget>

#include <optional>

// A form with all that one drags from and drops onto, shown. Places are the form's.
class DragScene
{
public:
    enum Side { Field, Box, Editor, Table, Combo, Tree, Beside };
    static constexpr int sources = Beside;
    static constexpr int targets = Beside + 1;
    static const char *nameOf(Side side);

    // What is taken hold of.
    struct Held
    {
        QPoint at;
        QString text;  // what a field gets; a row's is known when the drag begins
        QString name;  // what a program gets
        int start = 0; // where it stands in a text
    };

    DragScene();
    ~DragScene();
    Q_DISABLE_COPY_MOVE(DragScene) // its components know it

    static bool isText(Side side) { return side <= Editor; }

    // Null once it is destroyed; for Beside always.
    QWidget *component(Side side) const;
    bool isWhole() const;
    QPlainTextEdit *textOf(Side side) const;

    // With line feeds; empty for what has no text.
    QString text(Side side) const;
    void setText(Side side, const QString &text);
    bool mayChange(Side side) const;
    void setReadOnly(Side side, bool on);

    // Selects what begins at so much of the whole, in hundredths, and tells where to press.
    // Nothing where none of it is seen.
    std::optional<Held> hold(Side side, int start, int length);

    // Somewhere over it; nothing where that is not seen.
    std::optional<QPoint> over(Side side, int across, int down) const;

    ORVTListview::ORVListView *table() const { return m_table; }
    ORVTListview::ORVDataCombo *combo() const { return m_combo; }
    ORVTListview::ORVTreeview *tree() const { return m_tree; }

    QWidget form;

private:
    bool isSeen(const QPoint &place) const;
    Held holdEntry() const;
    std::optional<Held> holdText(Side side, int start, int length);
    std::optional<Held> holdRow(int hundredth);
    std::optional<Held> holdNode(int hundredth);
    void fillTable();
    void fillTree();
    QWidget *surface(Side side) const;

    ORVTListview::PointList m_inputs;
    ORVTListview::PointList m_others; // none
    QPointer<QPlainTextEdit> m_field;
    QPointer<ORVTListview::RichTextBox> m_box;
    QPointer<ORVTListview::ORVListView> m_editor;
    QPointer<ORVTListview::ORVListView> m_table;
    QPointer<ORVTListview::ORVDataCombo> m_combo;
    QPointer<ORVTListview::ORVTreeview> m_tree;
};
