#pragma once

#include "project/SimulatedController.h"

#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace ORVTListview {

class CodeView;
class HoverAnswer;
class Project;

// Tells the editor of the project's points: the descriptions for its list of words, the
// values of now, each second those that the simulated controller has then, and all there is
// of a point when the mouse asks. The project and its tables keep what was read last.
class PointValues : public QObject
{
    Q_OBJECT

public:
    PointValues(CodeView &view, QObject *parent);

    // The project must live until the next call. Begins with the values that it has.
    void setProject(const Project *project);

    // After points were read or renamed.
    void takeProject();

private:
    struct Told
    {
        QString name;
        LwType type = dsCode;
        QVariant value;
        QString unit;
        QString description;
    };

    void askController();
    void describeWords();
    void feed();
    void answer(const QString &word, HoverAnswer *answer) const;

    CodeView &m_view;
    const Project *m_project = nullptr;
    QHash<QString, Told> m_points; // by their names in one letter case
    SimulatedController m_controller;
    QTimer m_second;
};

} // namespace ORVTListview
