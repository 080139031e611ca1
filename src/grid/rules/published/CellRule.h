#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <limits>

namespace ORVTListview {

// How users edit the cells of a column, and what these take. Fields that do not belong
// to the kind are passed over.
struct CellRule
{
    Q_GADGET_EXPORT(ORVT_CORE_EXPORT)
    Q_PROPERTY(ORVTListview::CellRule::Kind kind MEMBER kind)
    Q_PROPERTY(bool canBeEmpty MEMBER canBeEmpty)
    Q_PROPERTY(qint32 maxLength MEMBER maxLength)
    Q_PROPERTY(QString pattern MEMBER pattern)
    Q_PROPERTY(QString hint MEMBER hint)
    Q_PROPERTY(double minimum MEMBER minimum)
    Q_PROPERTY(double maximum MEMBER maximum)
    Q_PROPERTY(qint32 decimals MEMBER decimals)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(QStringList choices MEMBER choices)

public:
    // What the cells hold.
    enum Kind : qint32 {
        NotEdited, // users do not edit it
        Text,
        Number,   // kept with a point, whatever the country
        Choice,   // one of the choices, in any letter case
        YesNo,    // the first choice or the second; without choices "Yes" or "No"
        PointName // one of the choices, or of the names that the grid knows of
    };
    Q_ENUM(Kind)

    Kind kind = NotEdited;  // which of the fields below count
    bool canBeEmpty = true; // whether an empty text is taken

    // Text: the most characters, 0 for any number, and a regular expression that all of
    // the text is to match, empty for none. The hint is the sentence shown when it does not.
    qint32 maxLength = 0;
    QString pattern = {};
    QString hint = {}; // NotEdited: the sentence that says what else to do

    // Number: the unit may be typed behind it and is not kept. The choices are words that
    // are taken in place of a number, such as "On".
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    qint32 decimals = 6;
    QString unit = {};

    QStringList choices = {}; // Choice, YesNo, PointName, and words for Number

    friend bool operator==(const CellRule &, const CellRule &) = default;
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::CellRule)
