#include <ORVTListview/HoverAnswer.h>

#include <algorithm>
#include <array>

namespace ORVTListview {

struct HoverAnswer::Private
{
    std::array<QString, Description + 1> parts;
    LwType kind = dsCode;
};

HoverAnswer::HoverAnswer()
    : d(std::make_unique<Private>())
{
}

HoverAnswer::~HoverAnswer() = default;

QString HoverAnswer::part(Part part) const
{
    return d->parts.at(part);
}

void HoverAnswer::setPart(Part part, const QString &text)
{
    d->parts.at(part) = text;
}

LwType HoverAnswer::kind() const
{
    return d->kind;
}

void HoverAnswer::setKind(LwType kind)
{
    d->kind = kind;
}

// A unit alone tells nothing.
bool HoverAnswer::isEmpty() const
{
    constexpr std::array telling{Text, Name, Value, Description};
    return std::all_of(telling.begin(), telling.end(),
                       [this](Part each) { return part(each).isEmpty(); });
}

} // namespace ORVTListview
