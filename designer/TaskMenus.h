#pragma once

#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

// Gives the widgets on Designer's forms their task menus.
class TaskMenus : public QExtensionFactory
{
    Q_OBJECT

public:
    // Belongs to the editor's manager of extensions.
    static void addTo(QDesignerFormEditorInterface &editor);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    using QExtensionFactory::QExtensionFactory;
};
