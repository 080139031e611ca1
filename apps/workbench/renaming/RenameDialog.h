#pragma once

#include "project/PointUses.h"

#include <QtWidgets/QDialog>

class QTreeWidget;

namespace ORVTListview {

// The places that name a point, each with a tick, before it is renamed in them.
class RenameDialog : public QDialog
{
    Q_OBJECT

public:
    RenameDialog(const QString &former, const QString &name, const QList<PointUse> &uses,
                 QWidget *parent);

    // The places that have their tick, in their order.
    QList<PointUse> chosen() const;

private:
    void setAll(Qt::CheckState state);

    QList<PointUse> m_uses;
    QTreeWidget *m_places;
};

// Such as "Controllers 2, Input".
QString placeName(const PointUse &use);

} // namespace ORVTListview
