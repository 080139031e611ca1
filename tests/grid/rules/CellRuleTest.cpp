#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include <ORVTListview/CellRule.h>
#include <ORVTListview/CellState.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QVariant>

#include <gtest/gtest.h>

#include <limits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(CellRule, ANewOneLetsNobodyEditAndBoundsNothing)
{
    const CellRule rule;
    EXPECT_EQ(rule.kind, CellRule::NotEdited);
    EXPECT_TRUE(rule.canBeEmpty);
    EXPECT_EQ(rule.maxLength, 0);
    EXPECT_LT(rule.minimum, std::numeric_limits<double>::lowest());
    EXPECT_GT(rule.maximum, std::numeric_limits<double>::max());
    EXPECT_EQ(rule.decimals, 6);
    EXPECT_EQ(rule.pattern + rule.hint + rule.unit, QString());
    EXPECT_TRUE(rule.choices.isEmpty());
}

TEST(CellRule, IsEqualInAllFieldsOnly)
{
    expectEveryFieldCounts(
        CellRule(), [](CellRule &rule) { rule.kind = CellRule::Number; },
        [](CellRule &rule) { rule.canBeEmpty = false; }, [](CellRule &rule) { rule.maxLength = 8; },
        [](CellRule &rule) { rule.pattern = u"[A-Z]"_s; },
        [](CellRule &rule) { rule.hint = u"Letters only"_s; },
        [](CellRule &rule) { rule.minimum = 0; }, [](CellRule &rule) { rule.maximum = 100; },
        [](CellRule &rule) { rule.decimals = 0; }, [](CellRule &rule) { rule.unit = u"s"_s; },
        [](CellRule &rule) { rule.choices = QStringList{u"On"_s}; });
}

TEST(CellRule, HostsWithoutTypesSetItsFieldsByName)
{
    CellRule rule;
    const QMetaObject &meta = CellRule::staticMetaObject;
    const auto set = [&](const char *field, const QVariant &value) {
        return meta.property(meta.indexOfProperty(field)).writeOnGadget(&rule, value);
    };
    EXPECT_TRUE(set("kind", QVariant::fromValue(CellRule::Choice)));
    EXPECT_TRUE(set("canBeEmpty", false));
    EXPECT_TRUE(set("choices", QStringList{u"Auto"_s, u"Hand"_s}));
    CellRule expected{.kind = CellRule::Choice, .canBeEmpty = false};
    expected.choices = QStringList{u"Auto"_s, u"Hand"_s};
    EXPECT_EQ(rule, expected);
}

TEST(CellRule, AndStateTravelInVariants)
{
    const CellRule rule{.kind = CellRule::Text, .maxLength = 8};
    const QVariant held = QVariant::fromValue(rule);
    EXPECT_STREQ(held.typeName(), "ORVTListview::CellRule");
    EXPECT_EQ(held.value<CellRule>(), rule);
    EXPECT_EQ(held, QVariant::fromValue(CellRule(rule)));
    const QVariant state = QVariant::fromValue(CellState::Alarm);
    EXPECT_STREQ(state.typeName(), "ORVTListview::CellState");
    EXPECT_EQ(state.value<CellState>(), CellState::Alarm);
}
