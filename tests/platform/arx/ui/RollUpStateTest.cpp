// When a floating set rolls up to its caption and comes down again.
#include "arx/ui/RollUpState.h"

#include <gtest/gtest.h>

using arxui::RollUpState;
using Change = arxui::RollUpState::Change;

namespace
{

const DWORD start = 1000;

} // namespace

TEST(RollUpState, WithoutAutomaticNothingHappensWhereverTheCursorIs)
{
    RollUpState state;
    EXPECT_EQ(Change::None, state.Observe(false, false, start));
    EXPECT_EQ(Change::None, state.Observe(false, false, start + 60000));
    EXPECT_FALSE(state.IsRolledUp());
}

TEST(RollUpState, RollsUpAfterTheDelayOnceTheCursorLeft)
{
    RollUpState state;
    state.SetAutomatic(true);
    EXPECT_EQ(Change::None, state.Observe(false, false, start));
    EXPECT_EQ(Change::None, state.Observe(false, false, start + RollUpState::rollUpDelay - 1));
    EXPECT_EQ(Change::RolledUp, state.Observe(false, false, start + RollUpState::rollUpDelay));
    EXPECT_TRUE(state.IsRolledUp());
}

TEST(RollUpState, CursorThatComesBackStartsTheDelayAnew)
{
    RollUpState state;
    state.SetAutomatic(true);
    state.Observe(false, false, start);
    state.Observe(true, false, start + 300);
    EXPECT_EQ(Change::None, state.Observe(false, false, start + 400));
    EXPECT_EQ(Change::None, state.Observe(false, false, start + RollUpState::rollUpDelay));
    EXPECT_EQ(Change::RolledUp, state.Observe(false, false, start + 400 + RollUpState::rollUpDelay));
}

TEST(RollUpState, HeldSetStaysOpen)
{
    RollUpState state;
    state.SetAutomatic(true);
    state.Observe(false, true, start);
    EXPECT_EQ(Change::None, state.Observe(false, true, start + 60000));
}

TEST(RollUpState, RollsDownWhenTheCursorRestsOnTheCaption)
{
    RollUpState state;
    state.SetAutomatic(true);
    state.SetRolledUp(true);
    EXPECT_EQ(Change::None, state.Observe(true, false, start));
    EXPECT_EQ(Change::RolledDown, state.Observe(true, false, start + RollUpState::rollDownDelay));
}

TEST(RollUpState, TurningAutomaticOffOpensTheSet)
{
    RollUpState state;
    state.SetAutomatic(true);
    state.SetRolledUp(true);
    EXPECT_EQ(Change::RolledDown, state.SetAutomatic(false));
    EXPECT_FALSE(state.IsRolledUp());
}

TEST(RollUpState, DelayIsRightAcrossTheWrapOfTheClock)
{
    RollUpState state;
    state.SetAutomatic(true);
    const DWORD nearWrap = 0xFFFFFF00;
    state.Observe(false, false, nearWrap);
    EXPECT_EQ(Change::None, state.Observe(false, false, nearWrap + 100));
    EXPECT_EQ(Change::RolledUp, state.Observe(false, false, nearWrap + RollUpState::rollUpDelay));
}
