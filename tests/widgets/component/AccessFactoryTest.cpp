// What assistive programs are told by the library's own functions, as long as it is loaded.

#include "widgets/component/AccessFactory.h"

#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QAccessibleWidget>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct ClockAccess : QAccessibleWidget
{
    explicit ClockAccess(QWidget &widget)
        : QAccessibleWidget(&widget, QAccessible::Clock)
    {
    }
};

QAccessibleInterface *makeAccess(const QString &, QObject *object)
{
    return object->objectName() == u"clock" ? new ClockAccess(*static_cast<QWidget *>(object))
                                            : nullptr;
}

QAccessible::Role roleTold()
{
    QWidget widget; // a new one: each is asked about but once
    widget.setObjectName(u"clock"_s);
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

} // namespace

class AccessFactoryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAskedAsLongAsItLives()
    {
        {
            const AccessFactory factory(makeAccess);
            QCOMPARE(roleTold(), QAccessible::Clock);
        }
        QCOMPARE(roleTold(), QAccessible::Client);
    }

    void comesBackAfterTheToolkitHasForgottenIt()
    {
        AccessFactory factory(makeAccess);
        QAccessible::removeFactory(makeAccess); // as the application does that goes
        QCOMPARE(roleTold(), QAccessible::Client);
        factory.install();
        factory.install();
        QCOMPARE(roleTold(), QAccessible::Clock);
    }
};

ORVT_TEST(AccessFactoryTest)
#include "AccessFactoryTest.moc"
