#pragma once

#include "workbench/saving/RecoveryKeeper.h"

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview {

class ORVListView;
class ProjectDocument;

// Offers the user what former workbenches left of the project that is open.
class RecoveryOffer : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    RecoveryOffer(ProjectDocument &document, RecoveryKeeper &keeper, ORVListView &code,
                  QWidget &window);

    void makeAll();

private:
    bool make();
    bool restore(const RecoveryKeeper::Left &left);
    void tellUnreadable(const QString &fileName);

    ProjectDocument &m_document;
    RecoveryKeeper &m_keeper;
    ORVListView &m_code;
    QWidget &m_window;
    bool m_isAsking = false;
};

} // namespace ORVTListview
