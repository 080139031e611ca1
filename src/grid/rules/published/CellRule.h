#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <limits>

namespace ORVTListview {

// How users edit the cells of a column, and what these take. Fields that do not belong
// to the kind are passed over.
struct CellRule
{
    enum Kind : qint32 {
        NotEdited, // users do not edit it
        Text,
        Number,   // kept with a point, whatever the country
        Choice,   // one of the choices, in any letter case
        YesNo,    // the first choice or the second; without choices "Yes" or "No"
        PointName // one of the choices, or of the names that the grid knows of
    };

    Kind kind = NotEdited;
    bool canBeEmpty = true;

    // Text: the most characters, 0 for any number, and a regular expression that all of
    // the text is to match, empty for none. The hint is the sentence shown when it does not.
    qint32 maxLength = 0;
    QString pattern = {};
    QString hint = {};

    // Number: the unit may be typed behind it and is not kept. The choices are words that
    // are taken in place of a number, such as "On".
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    qint32 decimals = 6;
    QString unit = {};

    QStringList choices = {};

    friend bool operator==(const CellRule &, const CellRule &) = default;
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::CellRule)
