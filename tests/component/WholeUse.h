#pragma once

#include "SampleArguments.h"

#include <ORVTListview/Component.h>

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

// A host and a user who try all that there is.
namespace WholeUse {

inline void callEveryMember(ORVTListview::Component &component)
{
    for (const ORVTListview::Member &member : component.Members().members()) {
        QVariant result;
        QVariantList arguments = member.kind == ORVTListview::MemberKind::Method
                                     ? SampleArguments::all(member)
                                     : QVariantList();
        if (member.kind != ORVTListview::MemberKind::Event && member.call)
            component.Invoke(member.name, arguments, result);
        QVariantList value{SampleArguments::one(member.type)};
        if (member.put)
            component.Invoke(member.name, value, result);
    }
}

// Whether the widget takes them or not.
inline void useKeysAndMouse(QWidget &widget)
{
    for (const int key : {Qt::Key_Down, Qt::Key_A, Qt::Key_Space, Qt::Key_F1, Qt::Key_F6}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier,
                            key == Qt::Key_A ? QStringLiteral("a") : QString());
            QCoreApplication::sendEvent(&widget, &event);
        }
    }
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton})
        QTest::mouseClick(&widget, button);
    QTest::mouseMove(&widget, QPoint(5, 5));
    QTest::mouseDClick(&widget, Qt::LeftButton);
}

inline void useEveryWidget(QWidget &component)
{
    useKeysAndMouse(component);
    for (QWidget *child : component.findChildren<QWidget *>()) {
        if (child->isVisible())
            useKeysAndMouse(*child);
    }
}

} // namespace WholeUse
