#pragma once

#include "ComponentWidget.h"

#include <QtCore/QObject>
#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;
class QExtensionManager;

// Has the property editor show the components' own properties by subject, where Designer
// alone shows them by class.
class PropertyGroups : public QObject, public QAbstractExtensionFactory
{
    Q_OBJECT
    Q_INTERFACES(QAbstractExtensionFactory)

public:
    // Belongs to the editor's manager of extensions.
    static void addTo(QDesignerFormEditorInterface &editor,
                      const QList<ComponentDescription> &components);

    // Designer's own sheet of a component's properties, with the groups set.
    QObject *extension(QObject *object, const QString &iid) const override;

private:
    PropertyGroups(QExtensionManager &manager, const QList<ComponentDescription> &components);

    const ComponentDescription *described(const QObject *object) const;

    QExtensionManager &m_manager;
    const QList<ComponentDescription> m_components;
    mutable bool m_isAsking = false; // the manager, which then passes this object over
};
