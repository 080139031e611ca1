#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace ORVTListview {

class CodeView;
class HoverAnswer;
class PointReading;
class ProgramViews;
class Project;

// Tells the editors of the project's points: the descriptions for their lists of words, the
// values as they are read, and all there is of a point when the mouse asks.
class PointValues : public QObject
{
    Q_OBJECT

public:
    // The reading lives as long as this.
    PointValues(ProgramViews &programs, PointReading &reading, QObject *parent);

    // The project must live until the next call.
    void setProject(const Project *project);

    // After points have changed.
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

    void collect();
    void takeValues();
    void tellAll();
    void describeWords(CodeView &view) const;
    void feed(CodeView &view) const;
    void answer(const QString &word, HoverAnswer *answer) const;

    ProgramViews &m_programs;
    const Project *m_project = nullptr;
    QHash<QString, Told> m_points; // by their names in one letter case
};

} // namespace ORVTListview
