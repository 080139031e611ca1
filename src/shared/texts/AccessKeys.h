#pragma once

#include "base/HouseExport.h"

#include <QtCore/QStringList>

namespace ORVTListview {

// The captions of one dialog or menu, in its order, each with an "&" before the
// character that reaches it together with Alt. No two get the same character,
// whatever its letter case, and as many captions as possible get one; the others
// stay without. It is a letter or a digit. Preferred are the first letters of words, then
// other letters and digits of ASCII, then other letters.
//
// A single "&" in a caption given is a wish, which is granted unless an earlier
// caption wished the same; "&&" is a literal "&" and stays one. The same captions
// always get the same keys. To keep the keys of a dialog that shows some captions
// at times only, all of them are given at once.
ORVT_HOUSE_EXPORT QStringList withAccessKeys(const QStringList &captions);

} // namespace ORVTListview
