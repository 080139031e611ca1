#include "designer/Designer.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;

// What the property editor makes of the components' properties.
class DesignerPropertiesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_designer = std::make_unique<Designer>(); }
    void cleanupTestCase() { m_designer.reset(); }

    void tellsOfEachProperty();
    void groupsPropertiesBySubject_data();
    void groupsPropertiesBySubject();

private:
    std::unique_ptr<Designer> m_designer; // the plugin is added to one
};

void DesignerPropertiesTest::tellsOfEachProperty()
{
    const auto window = m_designer->opened(plainForm);
    const QList<QStringList> properties{
        {u"listView"_s, u"ListviewType"_s, u"points of one type"_s},
        {u"listView"_s, u"Caption"_s, u"name of the type"_s},
        {u"listView"_s, u"Enabled"_s, u"users can work"_s},
        {u"listView"_s, u"enabled"_s, u"same as Enabled"_s},
        {u"listView"_s, u"MultiSelect"_s, u"several rows"_s},
        {u"listView"_s, u"columnLayout"_s, u"Columns of This Type"_s},
        {u"listView"_s, u"programColours"_s, u"Colours of the Program"_s},
        {u"dataCombo"_s, u"Text"_s, u"at first"_s},
        {u"dataCombo"_s, u"Enabled"_s, u"users can work"_s},
        {u"dataCombo"_s, u"dragsEntry"_s, u"drag the picture"_s},
    };
    for (const QStringList &each : properties) {
        const QString told = m_designer->toolTip(*window, each.at(0), each.at(1));
        QVERIFY2(told.contains(each.at(2)), qPrintable(each.at(1) + u": "_s + told));
    }
}

void DesignerPropertiesTest::groupsPropertiesBySubject_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("group");
    const auto row = [](const QString &widget, const QString &property, const QString &group) {
        QTest::addRow("%s.%s", qPrintable(widget), qPrintable(property))
            << widget << property << group;
    };
    row(u"listView"_s, u"ListviewType"_s, u"Content"_s);
    row(u"listView"_s, u"Caption"_s, u"Content"_s);
    row(u"listView"_s, u"Enabled"_s, u"Behaviour"_s);
    row(u"listView"_s, u"enabled"_s, u"Behaviour"_s);
    row(u"listView"_s, u"MultiSelect"_s, u"Behaviour"_s);
    row(u"listView"_s, u"columnLayout"_s, u"Appearance"_s);
    row(u"listView"_s, u"programColours"_s, u"Appearance"_s);
    row(u"listView"_s, u"minimumSize"_s, u"QWidget"_s); // the toolkit's own stay by class
    row(u"dataCombo"_s, u"Text"_s, u"Content"_s);
    row(u"dataCombo"_s, u"Enabled"_s, u"Behaviour"_s);
    row(u"dataCombo"_s, u"dragsEntry"_s, u"Behaviour"_s);
    row(u"Form"_s, u"windowTitle"_s, u"QWidget"_s);
}

void DesignerPropertiesTest::groupsPropertiesBySubject()
{
    QFETCH(const QString, widget);
    QFETCH(const QString, property);
    const auto window = m_designer->opened(plainForm);
    QTEST(m_designer->group(*window, widget, property), "group");
    QTEST(m_designer->group(*window, widget, property), "group"); // a second time, too
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Designer looks into the folder "designer" of each.
    QCoreApplication::setLibraryPaths(QCoreApplication::libraryPaths()
                                      << QStringLiteral(ORVT_DESIGNER_FOLDER "/.."));
    DesignerPropertiesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DesignerPropertiesTest.moc"
