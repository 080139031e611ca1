#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// What an entry of an ImageCombo holds. Fields left out are empty.
struct ComboEntry
{
    QString key = {}; // case-sensitive; of equal keys the first is found
    QString text = {};
    qint32 image = 0; // an index into the combo's image list; 0: no picture
    qint32 selectedImage = 0;
    QString tag = {};

    friend bool operator==(const ComboEntry &, const ComboEntry &) = default;
};

} // namespace ORVTListview
