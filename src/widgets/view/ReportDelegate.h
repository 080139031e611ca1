#pragma once

#include "widgets/view/LetterGlyphs.h"

#include <QtWidgets/QStyledItemDelegate>

#include <functional>

namespace ORVTListview {

// Draws the cells of a list or a tree by the style, each on one line, and hands the
// label that a user has entered to the view instead of the model. The focus is a
// dotted frame in the colour of the text: the styles' own are too faint on a
// selected row, or lie over its text.
class ReportDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // An editor for a cell, whose text is its user property; null for a plain field.
    using EditorMaker = std::function<QWidget *(QWidget *parent, const QModelIndex &index)>;

    using QStyledItemDelegate::QStyledItemDelegate;

    void setEditorMaker(const EditorMaker &maker) { m_maker = maker; }

    // What changes how a cell looks, from what the model says.
    using Dresser = std::function<void(QStyleOptionViewItem &cell, const QModelIndex &index)>;
    void setDresser(const Dresser &dresser) { m_dresser = dresser; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    // Enters what is in an editor, and closes it.
    void finish(QWidget &editor);

    // Whether a cell of this option's place and size shows less than its text.
    bool isElided(const QStyleOptionViewItem &option, const QModelIndex &index) const;

Q_SIGNALS:
    void labelEntered(const QModelIndex &index, const QString &text) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    EditorMaker m_maker;
    Dresser m_dresser;
    mutable LetterGlyphs m_letters;
};

} // namespace ORVTListview
