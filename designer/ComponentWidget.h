#pragma once

#include <QtCore/QList>
#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// The subjects by which the property editor shows properties.
enum class PropertyGroup { Content, Behaviour, Appearance };

// How the property editor treats one of a component's own properties.
struct PropertyDescription
{
    QString name;
    PropertyGroup group = PropertyGroup::Content;
    QString toolTip;
    bool isLine = false; // a text that has no line breaks
};

// What the widget box, the forms and the property editor need of one component.
struct ComponentDescription
{
    QString className;
    QString title;      // in the widget box
    QString objectName; // of the first one on a form
    QString pictureKey;
    QString toolTip;
    QString whatsThis;
    QSize size;                                 // on a form, in pixels
    QList<PropertyDescription> properties = {}; // in the order of the property editor

    // A component on a form that is being designed has no effect outside of it.
    QWidget *(*create)(QWidget *parent, bool isDesigning) = nullptr;

    // What Designer gets besides, once; null for nothing.
    void (*addToDesigner)(QDesignerFormEditorInterface &editor) = nullptr;

    QString qualifiedName() const;
};

class ComponentWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit ComponentWidget(const ComponentDescription &description);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

    // Called by Designer only, and not by those who load forms at run time.
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    const ComponentDescription m_description;
    bool m_isDesigning = false;
};
