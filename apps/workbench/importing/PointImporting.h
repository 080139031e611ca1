#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview {

class ProjectDocument;

// Takes points out of a file into a table, as one step, after the user has seen what
// becomes of each.
class PointImporting : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    PointImporting(ProjectDocument &document, QWidget &window);

    // Asks for the file.
    void import(LwType type);
    void importFile(LwType type, const QString &fileName);

Q_SIGNALS:
    // What has been done.
    void told(const QString &text);

private:
    ProjectDocument &m_document;
    QWidget &m_window;
};

} // namespace ORVTListview
