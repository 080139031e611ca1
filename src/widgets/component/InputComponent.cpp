#include <ORVTListview/InputComponent.h>

namespace ORVTListview {

InputComponent::InputComponent(QWidget *parent)
    : Component(parent)
{
}

InputComponent::~InputComponent() = default;

} // namespace ORVTListview
