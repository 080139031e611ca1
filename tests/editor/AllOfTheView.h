#pragma once

#include <ORVTListview/CodeView.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaProperty>

// All switches of a code view but those named.
inline void switchView(ORVTListview::CodeView &view, bool on, const QList<QByteArray> &but = {})
{
    const QMetaObject &meta = *view.metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const bool isSwitch =
            property.isWritable() && property.metaType() == QMetaType::fromType<bool>();
        if (isSwitch && !but.contains(property.name()))
            property.write(&view, on);
    }
}

// What changes more than the look: what the editor does for one who types.
inline const QList<QByteArray> typingHelps{"autoIndent",          "smartHome", "trimsBlanks",
                                           "wordListOpensItself", "keepsText", "hasOwnUndo"};
