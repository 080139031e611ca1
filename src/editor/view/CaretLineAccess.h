#pragma once

#include <QtCore/QObject>

class QPlainTextEdit;

namespace ORVTListview {

class Folds;
class HostMarks;
class LiveValues;
class NumberColumn;
class Problems;

// Tells screen readers what is shown beside the line of the caret: its number, how many
// lines are hidden behind it, its problems, the host's marks, and the values shown behind
// it. What the host says of the box stands there again when there is nothing to tell.
class CaretLineAccess final : public QObject
{
    Q_OBJECT

public:
    struct Sources
    {
        const NumberColumn &numbers;
        const Folds &folds;
        const Problems &problems;
        const HostMarks &hostMarks;
        const LiveValues &values;
    };

    CaretLineAccess(QPlainTextEdit &box, const Sources &sources);

    // To be called when one of them is switched on or off.
    void refresh();

private:
    bool isNeeded() const;
    QString lineText() const;
    void tell();

    QPlainTextEdit &m_box;
    const Sources m_sources;
    bool m_isFollowing = false;
    QString m_description; // of the box, by its host
    QString m_told;        // in its place; empty for nothing
};

} // namespace ORVTListview
