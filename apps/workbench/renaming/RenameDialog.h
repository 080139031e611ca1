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
    struct Renamed
    {
        QString former;
        QString name;
        QList<PointUse> uses;
        ProgramList programs; // of the project
    };
    RenameDialog(const Renamed &renamed, QWidget *parent);

    // The places that have their tick, in their order.
    QList<PointUse> chosen() const;

private:
    void setAll(Qt::CheckState state);

    QList<PointUse> m_uses;
    QTreeWidget *m_places;
};

// Such as "Controllers 2, Input". A program has its name where there are several.
QString placeName(const PointUse &use, const ProgramList &programs);

} // namespace ORVTListview
