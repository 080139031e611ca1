#pragma once

#include <QtWidgets/QAccessibleWidget>

namespace ORVTListview {

class ImageCombo;

// What a screen reader is told of an ImageCombo: a combo box with a list and a
// field as its children.
class ImageComboAccess : public QAccessibleWidget
{
public:
    // Makes the toolkit ask for these; further calls do nothing.
    static void install();

    explicit ImageComboAccess(ImageCombo &combo);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    QWidget *childWidget(int index) const;

    ImageCombo &m_combo;
};

} // namespace ORVTListview
