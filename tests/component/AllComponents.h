#pragma once

#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVRichText.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtTest/QTest>

#include <memory>

// The rows of a test that every component goes through.
namespace AllComponents {

using Factory = ORVTListview::Component *(*)();

template <typename T>
ORVTListview::Component *made()
{
    return new T;
}

inline void addRows()
{
    using namespace ORVTListview;
    QTest::addColumn<Factory>("factory");
    QTest::newRow("ORVListView") << &made<ORVListView>;
    QTest::newRow("ORVTreeview") << &made<ORVTreeview>;
    QTest::newRow("ORVDataCombo") << &made<ORVDataCombo>;
    QTest::newRow("ORVRichText") << &made<ORVRichText>;
}

// That of the current row.
inline std::unique_ptr<ORVTListview::Component> component()
{
    QFETCH(Factory, factory);
    return std::unique_ptr<ORVTListview::Component>(factory());
}

} // namespace AllComponents
