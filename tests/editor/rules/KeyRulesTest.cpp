#include "editor/rules/KeyRules.h"

#include <gtest/gtest.h>

#include <set>

using namespace ORVTListview;

namespace {

constexpr qint16 shift = 1;
constexpr qint16 ctrl = 2;
constexpr qint16 alt = 4;

const KeyState idle;
const KeyState popup{.popupListShown = true};
const KeyState selection{.hasSelection = true};

const KeyState reading{.mayEdit = false};
const KeyState readingAPopup{.popupListShown = true, .mayEdit = false};
const KeyState readingASelection{.hasSelection = true, .mayEdit = false};

const std::set<qint16> editingKeys{8, 13, 46};
const std::set<qint16> movingKeys{33, 34, 35, 36, 38, 40};

} // namespace

TEST(KeyRules, PlainEditingAndMovingKeys)
{
    for (const qint16 key : editingKeys) {
        EXPECT_EQ(decideKey(key, 0, idle), KeyDecision::EditingKey) << key;
        EXPECT_EQ(decideKey(key, 0, popup), KeyDecision::PopupKey) << key;
    }
    for (const qint16 key : movingKeys) {
        EXPECT_EQ(decideKey(key, 0, idle), KeyDecision::MovingKey) << key;
        EXPECT_EQ(decideKey(key, 0, popup), KeyDecision::PopupKey) << key;
    }
}

TEST(KeyRules, WhoMayNotEditMovesAndCopiesOnly)
{
    const auto isSwallowed = [](qint16 key, qint16 state) {
        return decideKey(key, state, reading) == KeyDecision::Swallow &&
               decideKey(key, state, readingAPopup) == KeyDecision::Swallow &&
               decideKey(key, state, readingASelection) == KeyDecision::Swallow;
    };
    for (const qint16 key : editingKeys)
        EXPECT_TRUE(isSwallowed(key, 0)) << key;
    for (const qint16 key : movingKeys) {
        EXPECT_EQ(decideKey(key, 0, reading), KeyDecision::MovingKey) << key;
        EXPECT_EQ(decideKey(key, 0, readingAPopup), KeyDecision::MovingKey) << key;
    }
    for (const qint16 key : std::initializer_list<qint16>{9, 13, 45, 46})
        EXPECT_TRUE(isSwallowed(key, shift)) << key;
    for (const int key : {int('X'), int('V'), int('Z'), int('Y'), 32, 46})
        EXPECT_TRUE(isSwallowed(static_cast<qint16>(key), ctrl)) << key;
    EXPECT_EQ(decideKey(9, 0, readingASelection), KeyDecision::Swallow);
    EXPECT_EQ(decideKey('C', ctrl, reading), KeyDecision::Copy);
    EXPECT_EQ(decideKey('A', ctrl, reading), KeyDecision::SelectAll);
    EXPECT_EQ(decideKey(117, 0, reading), KeyDecision::Analyze);
    EXPECT_EQ(decideKey(117, ctrl, reading), KeyDecision::Compile);
}

TEST(KeyRules, PlainTab)
{
    EXPECT_EQ(decideKey(9, 0, idle), KeyDecision::ReachBox);
    EXPECT_EQ(decideKey(9, 0, selection), KeyDecision::IndentLines);
    EXPECT_EQ(decideKey(9, 0, popup), KeyDecision::PopupKey);
}

TEST(KeyRules, PlainFunctionKeys)
{
    EXPECT_EQ(decideKey(117, 0, idle), KeyDecision::Analyze);
    EXPECT_EQ(decideKey(112, 0, idle), KeyDecision::RaiseHelp);
}

TEST(KeyRules, EveryOtherPlainKeyReachesTheBox)
{
    const std::set<qint16> decided{9, 27, 112, 117};
    for (qint16 key = 1; key < 256; ++key) {
        if (editingKeys.contains(key) || movingKeys.contains(key) || decided.contains(key))
            continue;
        EXPECT_EQ(decideKey(key, 0, idle), KeyDecision::ReachBox) << key;
        EXPECT_EQ(decideKey(key, 0, popup), KeyDecision::ReachBox) << key;
    }
}

TEST(KeyRules, ShiftTab)
{
    EXPECT_EQ(decideKey(9, shift, idle), KeyDecision::DeleteBlankBefore);
    EXPECT_EQ(decideKey(9, shift, selection), KeyDecision::UnindentLines);
}

TEST(KeyRules, ShiftWithTheOldEditingKeys)
{
    EXPECT_EQ(decideKey(13, shift, idle), KeyDecision::EditingKey);
    EXPECT_EQ(decideKey(46, shift, idle), KeyDecision::Cut);
    EXPECT_EQ(decideKey(45, shift, idle), KeyDecision::Paste);
    EXPECT_EQ(decideKey(45, ctrl, idle), KeyDecision::Copy);
}

TEST(KeyRules, EveryOtherShiftKeyReachesTheBox)
{
    for (qint16 key = 1; key < 256; ++key) {
        if (key == 9 || key == 13 || key == 45 || key == 46)
            continue;
        EXPECT_EQ(decideKey(key, shift, idle), KeyDecision::ReachBox) << key;
    }
}

TEST(KeyRules, CtrlCommands)
{
    EXPECT_EQ(decideKey('C', ctrl, idle), KeyDecision::Copy);
    EXPECT_EQ(decideKey('X', ctrl, idle), KeyDecision::Cut);
    EXPECT_EQ(decideKey('V', ctrl, idle), KeyDecision::Paste);
    EXPECT_EQ(decideKey('Z', ctrl, idle), KeyDecision::Undo);
    EXPECT_EQ(decideKey('Y', ctrl, idle), KeyDecision::Redo);
    EXPECT_EQ(decideKey('A', ctrl, idle), KeyDecision::SelectAll);
    EXPECT_EQ(decideKey(32, ctrl, idle), KeyDecision::ShowWordList);
    EXPECT_EQ(decideKey(32, ctrl, popup), KeyDecision::ShowWordList);
    EXPECT_EQ(decideKey(117, ctrl, idle), KeyDecision::Compile);
    for (const qint16 key : {'H', 'F', 'G'})
        EXPECT_EQ(decideKey(key, ctrl, idle), KeyDecision::PassToHost) << key;
}

TEST(KeyRules, CtrlWithAMovingKeyReachesTheBox)
{
    for (qint16 key = 33; key <= 46; ++key) {
        if (key == 45 || key == 46)
            continue;
        EXPECT_EQ(decideKey(key, ctrl, idle), KeyDecision::ReachBox) << key;
    }
    EXPECT_EQ(decideKey(46, ctrl, idle), KeyDecision::DeleteWordAfter);
}

TEST(KeyRules, EveryOtherCtrlKeyIsSwallowed)
{
    const std::set<qint16> decided{'A', 'C', 'F', 'G', 'H', 'V', 'X', 'Y', 'Z', 32, 117};
    for (qint16 key = 1; key < 256; ++key) {
        if (decided.contains(key) || (key >= 33 && key <= 46))
            continue;
        EXPECT_EQ(decideKey(key, ctrl, idle), KeyDecision::Swallow) << key;
    }
}

TEST(KeyRules, OtherShiftStates)
{
    for (const int state : {alt + 0, alt + shift, alt + ctrl, ctrl + shift, alt + ctrl + shift}) {
        for (qint16 key = 1; key < 256; ++key) {
            const bool moves = key >= 33 && key <= 46;
            EXPECT_EQ(decideKey(key, static_cast<qint16>(state), idle),
                      moves ? KeyDecision::ReachBox : KeyDecision::Swallow)
                << key << " with " << state;
        }
    }
}

TEST(KeyRules, OnlyTheLowThreeShiftBitsCount)
{
    EXPECT_EQ(decideKey('V', static_cast<qint16>(ctrl | 8), idle), KeyDecision::Paste);
    EXPECT_EQ(decideKey('A', 8, idle), KeyDecision::ReachBox);
}

TEST(KeyRules, WhatTheEditorActsOnIsTakenFromShortcuts)
{
    for (const qint16 key : {'C', 'X', 'V', 'Z', 'Y', 'A', ' '})
        EXPECT_TRUE(isTakenFromShortcuts(decideKey(key, ctrl, idle))) << key;
    EXPECT_TRUE(isTakenFromShortcuts(decideKey(117, 0, idle)));
    EXPECT_TRUE(isTakenFromShortcuts(decideKey(117, ctrl, idle)));
    EXPECT_TRUE(isTakenFromShortcuts(decideKey(9, shift, idle)));
    EXPECT_TRUE(isTakenFromShortcuts(decideKey(9, 0, selection)));
    for (const qint16 key : {'F', 'G', 'H', 'B', 'S'})
        EXPECT_FALSE(isTakenFromShortcuts(decideKey(key, ctrl, idle))) << key;
    EXPECT_FALSE(isTakenFromShortcuts(decideKey('F', alt, idle)));
    EXPECT_FALSE(isTakenFromShortcuts(decideKey(112, 0, idle)));
}
