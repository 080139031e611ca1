#pragma once

#include "workbench/saving/RecoveryKeeper.h"

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview {

class ProgramViews;
class ProjectDocument;

// Offers the user what former workbenches left of the project that is open.
class RecoveryOffer : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    RecoveryOffer(ProjectDocument &document, RecoveryKeeper &keeper, const ProgramViews &programs,
                  QWidget &window);

    // Dates are written as the locale does.
    void makeAll(const QLocale &locale);

private:
    bool make(const QLocale &locale);
    void restorePrograms(const QStringList &texts);
    bool restore(const RecoveryKeeper::Left &left);
    void tellUnreadable(const QString &fileName);

    ProjectDocument &m_document;
    RecoveryKeeper &m_keeper;
    const ProgramViews &m_programs;
    QWidget &m_window;
    bool m_isAsking = false;
};

} // namespace ORVTListview
