#include "ComponentWidget.h"

#include "widgets/look/Pictures.h"
#include <ORVTListview/ImageList.h>

using namespace Qt::StringLiterals;

namespace {

// Of the form's XML.
QString specifications(const QList<PropertyDescription> &properties)
{
    QString xml;
    for (const PropertyDescription &property : properties) {
        if (property.isLine)
            xml += u"<stringpropertyspecification name=\"%1\" type=\"singleline\"/>"_s.arg(
                property.name);
        xml += u"<tooltip name=\"%1\">%2</tooltip>"_s.arg(property.name, property.toolTip);
    }
    return xml;
}

} // namespace

QString ComponentDescription::qualifiedName() const
{
    return u"ORVTListview::"_s + className;
}

ComponentWidget::ComponentWidget(const ComponentDescription &description)
    : m_description(description)
{
}

QString ComponentWidget::name() const
{
    return m_description.qualifiedName();
}

QString ComponentWidget::group() const
{
    return u"ORVTListview"_s;
}

QString ComponentWidget::toolTip() const
{
    return m_description.toolTip;
}

QString ComponentWidget::whatsThis() const
{
    return m_description.whatsThis;
}

QString ComponentWidget::includeFile() const
{
    return u"<ORVTListview/%1.h>"_s.arg(m_description.className);
}

QIcon ComponentWidget::icon() const
{
    ORVTListview::ImageList images;
    ORVTListview::Pictures::fillInto(images);
    const QIcon picture = images.Picture(m_description.pictureKey);
    QIcon icon; // the widget box shows icons of pixmaps only
    for (const int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(picture.pixmap(size));
    return icon;
}

bool ComponentWidget::isContainer() const
{
    return false;
}

QWidget *ComponentWidget::createWidget(QWidget *parent)
{
    return m_description.create(parent, m_isDesigning);
}

QString ComponentWidget::domXml() const
{
    const QString xml = uR"(<ui language="c++" displayname="%1">
 <widget class="%2" name="%3">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>%4</width><height>%5</height></rect>
  </property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>%2</class>
   <extends>QWidget</extends>
   <propertyspecifications>%6</propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>)"_s;
    return xml.arg(m_description.title, name(), m_description.objectName,
                   QString::number(m_description.size.width()),
                   QString::number(m_description.size.height()),
                   specifications(m_description.properties));
}

bool ComponentWidget::isInitialized() const
{
    return m_isDesigning;
}

void ComponentWidget::initialize(QDesignerFormEditorInterface *core)
{
    m_isDesigning = true;
    if (m_description.addToDesigner)
        m_description.addToDesigner(*core);
}
