#pragma once

#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QMetaProperty>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

// What a component itself has as properties, and values that each can have.

inline QList<QMetaProperty> ownProperties(const QObject &component)
{
    const QMetaObject &meta = *component.metaObject();
    QList<QMetaProperty> properties;
    for (int i = ORVTListview::Component::staticMetaObject.propertyCount();
         i < meta.propertyCount(); ++i) {
        if (meta.property(i).isReadable() && !meta.property(i).isConstant())
            properties.append(meta.property(i));
    }
    return properties;
}

inline QList<QMetaProperty> writableProperties(const QObject &component)
{
    QList<QMetaProperty> properties = ownProperties(component);
    properties.removeIf([](const QMetaProperty &property) { return !property.isWritable(); });
    return properties;
}

// As ORVListView::programColours.
inline QString allColours(const QString &colour)
{
    QStringList parts;
    const QMetaObject &record = ORVTListview::RichTextSettings::staticMetaObject;
    for (int i = 0; i < record.propertyCount(); ++i)
        parts << QLatin1String(record.property(i).name()) + u':' + colour;
    return parts.join(u';');
}

// Two values that the property can have.
inline QVariantList values(QObject &component, const QMetaProperty &property)
{
    static const QHash<QByteArray, QVariantList> special{
        {"indentUnit", {QStringLiteral("  "), QStringLiteral("\t")}},
        {"columnLayout", {QStringLiteral("Label:1440"), QStringLiteral("Label:720")}},
        {"programColours",
         {allColours(QStringLiteral("#ffffff")), allColours(QStringLiteral("#202020"))}},
        {"CodeText", {QStringLiteral("IF A = 1"), QStringLiteral("ENDIF")}},
        {"CodeTextRTF", {QStringLiteral(R"({\rtf1 one})"), QStringLiteral(R"({\rtf1 two})")}},
        {"labelColumn", {0, 1}},
    };
    if (special.contains(property.name()))
        return special.value(property.name());
    if (auto *tree = qobject_cast<ORVTListview::ORVTreeview *>(&component))
        return {QVariant::fromValue(tree->Nodes()->Item(1)),
                QVariant::fromValue(tree->Nodes()->Item(3))};
    if (property.isEnumType())
        return {qint32{ORVTListview::dsOutput}, qint32{ORVTListview::dsTimer}};
    if (property.metaType().id() == QMetaType::Bool)
        return {false, true};
    if (property.metaType().id() == QMetaType::QString)
        return {QStringLiteral("one"), QStringLiteral("two")};
    return {3, 4};
}
