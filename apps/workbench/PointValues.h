#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace ORVTListview {

class CodeView;
class HoverAnswer;
class PointReading;
class Project;

// Tells the editor of the project's points: the descriptions for its list of words, the
// values as they are read, and all there is of a point when the mouse asks.
class PointValues : public QObject
{
    Q_OBJECT

public:
    // The reading lives as long as this.
    PointValues(CodeView &view, PointReading &reading, QObject *parent);

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
    void describeWords();
    void feed();
    void answer(const QString &word, HoverAnswer *answer) const;

    CodeView &m_view;
    const Project *m_project = nullptr;
    QHash<QString, Told> m_points; // by their names in one letter case
};

} // namespace ORVTListview
