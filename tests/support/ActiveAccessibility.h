#pragma once

#include <QtGui/QAccessible>
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>

// While one lives, the toolkit sends accessibility events as if a screen reader were
// there, which no published function can bring about.
class ActiveAccessibility
{
public:
    ActiveAccessibility() { platform().setActive(true); }
    ~ActiveAccessibility() { platform().setActive(false); }
    Q_DISABLE_COPY_MOVE(ActiveAccessibility) // one switch

private:
    static QPlatformAccessibility &platform()
    {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }
};
