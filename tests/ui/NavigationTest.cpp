#include "ui/Navigation.h"

#include <gtest/gtest.h>

namespace {

const SidebarDestination overview = SidebarDestination::screen(SidebarDestination::Kind::overview);
const SidebarDestination logs = SidebarDestination::of(CategoryID::logs);
const SidebarDestination trash = SidebarDestination::of(CategoryID::trash);

}  // namespace

TEST(Navigation, SwitchesAtOnceOnlyWithoutASelection)
{
    Navigation navigation;
    EXPECT_EQ(navigation.choose(overview, true), Navigation::Step::stay);
    EXPECT_FALSE(navigation.pendingDestination());

    EXPECT_EQ(navigation.choose(logs, false), Navigation::Step::go);
    EXPECT_EQ(navigation.destination(), logs);

    EXPECT_EQ(navigation.choose(trash, true), Navigation::Step::ask);
    EXPECT_EQ(navigation.destination(), logs);
    EXPECT_EQ(navigation.pendingDestination(), trash);
}

TEST(Navigation, AnswersResolveThePendingScreen)
{
    Navigation navigation(logs);
    ASSERT_EQ(navigation.choose(trash, true), Navigation::Step::ask);
    navigation.dropPending();
    EXPECT_FALSE(navigation.goToPending());
    EXPECT_EQ(navigation.destination(), logs);

    ASSERT_EQ(navigation.choose(overview, true), Navigation::Step::ask);
    // A later choice replaces the earlier one.
    ASSERT_EQ(navigation.choose(trash, true), Navigation::Step::ask);
    EXPECT_TRUE(navigation.goToPending());
    EXPECT_EQ(navigation.destination(), trash);
    EXPECT_FALSE(navigation.pendingDestination());
}
