#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace ORVTListview {

// How bad a problem is, the worst first.
enum class ProblemSeverity : qint32 { Error, Warning, Hint };

// What a check of the program found, and where.
struct Problem
{
    Q_GADGET_EXPORT(ORVT_EXPORT)
    Q_PROPERTY(qint32 line MEMBER line)
    Q_PROPERTY(qint32 from MEMBER from)
    Q_PROPERTY(qint32 length MEMBER length)
    Q_PROPERTY(ORVTListview::ProblemSeverity severity MEMBER severity)
    Q_PROPERTY(QString text MEMBER text)

public:
    qint32 line = 1;                                   // from 1
    qint32 from = 0;                                   // characters of the line before it
    qint32 length = 0;                                 // within the line; 0 for the rest of it
    ProblemSeverity severity = ProblemSeverity::Error; // chooses sign and colour
    QString text;                                      // a sentence, shown as it stands

    friend bool operator==(const Problem &, const Problem &) = default;
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::Problem)
