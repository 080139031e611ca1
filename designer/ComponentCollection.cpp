#include "ComponentCollection.h"

#include "Components.h"

ComponentCollection::ComponentCollection(QObject *parent)
    : QObject(parent)
{
    for (const ComponentDescription &description : allComponents())
        m_widgets.push_back(std::make_unique<ComponentWidget>(description));
}

ComponentCollection::~ComponentCollection() = default;

QList<QDesignerCustomWidgetInterface *> ComponentCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (const auto &widget : m_widgets)
        widgets.append(widget.get());
    return widgets;
}
