#pragma once

#include <QtCore/QObject>

class QLineEdit;
class QMenu;
class QPoint;

namespace ORVTListview {

// The context menu of a field in the library's own words. The toolkit's is in
// English in every application that installs no translator for the toolkit.
class FieldMenu : public QObject
{
    Q_OBJECT

public:
    // Becomes the field's, which may from then on go while something is dragged over it. A
    // combo box must have the field already.
    static void installOn(QLineEdit &field);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit FieldMenu(QLineEdit &field);
    void open(const QPoint &place);
    void fill(QMenu &menu) const;

    QLineEdit &m_field;
};

} // namespace ORVTListview
