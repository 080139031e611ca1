#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

// The keys of Undo and Redo are the menu's wherever nothing takes them itself. A field that is
// typed into keeps both, also the one it has no use for: nobody wants another step taken back
// than that of the field. The field of the points' list has something to take back only while a
// name is typed into it.
class UndoKeys : public QObject
{
    Q_OBJECT

public:
    explicit UndoKeys(QObject *parent);

Q_SIGNALS:
    // One of them, before the menu gets it.
    void pressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace ORVTListview
