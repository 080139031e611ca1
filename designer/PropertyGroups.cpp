#include "PropertyGroups.h"

#include <QtCore/QScopedValueRollback>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

#include <algorithm>

namespace {

QString title(PropertyGroup group)
{
    switch (group) {
    case PropertyGroup::Content:
        return PropertyGroups::tr("Content");
    case PropertyGroup::Behaviour:
        return PropertyGroups::tr("Behaviour");
    case PropertyGroup::Appearance:
        return PropertyGroups::tr("Appearance");
    }
    return {};
}

} // namespace

void PropertyGroups::addTo(QDesignerFormEditorInterface &editor,
                           const QList<ComponentDescription> &components)
{
    QExtensionManager &manager = *editor.extensionManager();
    manager.registerExtensions(new PropertyGroups(manager, components),
                               Q_TYPEID(QDesignerPropertySheetExtension));
}

PropertyGroups::PropertyGroups(QExtensionManager &manager,
                               const QList<ComponentDescription> &components)
    : QObject(&manager)
    , m_manager(manager)
    , m_components(components)
{
}

QObject *PropertyGroups::extension(QObject *object, const QString &iid) const
{
    const ComponentDescription *component = m_isAsking ? nullptr : described(object);
    if (!component)
        return nullptr;
    const QScopedValueRollback asking(m_isAsking, true);
    QObject *sheet = m_manager.extension(object, iid);
    auto *properties = qobject_cast<QDesignerPropertySheetExtension *>(sheet);
    for (const PropertyDescription &property : component->properties) {
        const int index = properties ? properties->indexOf(property.name) : -1;
        if (index >= 0)
            properties->setPropertyGroup(index, title(property.group));
    }
    return sheet;
}

const ComponentDescription *PropertyGroups::described(const QObject *object) const
{
    if (!object) // Designer asks so while nothing is selected
        return nullptr;
    const auto className = QLatin1StringView(object->metaObject()->className());
    const auto found = std::find_if(m_components.cbegin(), m_components.cend(),
                                    [className](const ComponentDescription &component) {
                                        return component.qualifiedName() == className;
                                    });
    return found == m_components.cend() ? nullptr : &*found;
}
