#pragma once

#include <QtWidgets/QAccessibleWidget>

#include <functional>

class QComboBox;
class QListView;

namespace ORVTListview {

// What a screen reader is told of an ImageCombo: a combo box with a list and a
// field as its children.
class ImageComboAccess : public QAccessibleWidget
{
public:
    // The list is asked for when it is told of: the toolkit may want this object while
    // the combo is being made.
    ImageComboAccess(QComboBox &combo, std::function<QListView &()> list);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QWidget *childWidget(int index) const;

    bool isListOpen() const;

    QComboBox &m_combo;
    std::function<QListView &()> m_list;
};

} // namespace ORVTListview
