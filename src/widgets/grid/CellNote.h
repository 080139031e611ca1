#pragma once

#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QString>

class QLabel;
class QTableView;

namespace ORVTListview {

// A sentence under a cell, or over it where there is no room: why something was not
// taken. It goes with the next key or press in the view, or when the editor that it is
// shown for changes or closes.
class CellNote final : public QObject
{
public:
    explicit CellNote(QTableView &view);
    ~CellNote() override;

    // The editor, if there is one, is in the cell. At the corner for a cell that is not seen.
    void show(const QModelIndex &cell, const QString &sentence, QWidget *editor);
    void hide();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    QRect anchor() const;
    void followEditor();

    QTableView &m_view;
    QPointer<QLabel> m_label; // a child of the view, made when it is first needed
    QPersistentModelIndex m_cell;
    QPointer<QWidget> m_editor;
    bool m_isAtCorner = false;
};

} // namespace ORVTListview
