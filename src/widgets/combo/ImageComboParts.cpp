#include "widgets/combo/ImageComboParts.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <utility>

namespace ORVTListview {
namespace {

QLineEdit &fieldOf(QComboBox &combo)
{
    combo.setEditable(true);
    return *combo.lineEdit();
}

} // namespace

ImageComboParts::ImageComboParts(QComboBox &owner, std::function<bool(QPoint)> pressesArrow)
    : entries(new ComboEntries(&owner))
    , list(new ComboList(owner, *entries, std::move(pressesArrow)))
    , drag(owner, owner)
    , field(fieldOf(owner))
{
}

} // namespace ORVTListview
