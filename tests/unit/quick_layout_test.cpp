// The QuickLauncher as it is laid out and loaded.
#include <gtest/gtest.h>

#include "quick_app.h"

namespace {

using qs::test::QuickApp;
using qs::ui::Control;
using qs::ui::PictureBox;

struct Place {
    std::int32_t left, top, width, height;
};

// The control's place on its strip, and that it lies on that strip.
void ExpectOnStrip(const Control& control, const PictureBox& strip, Place place) {
    EXPECT_EQ(control.Container(), &strip) << std::string(control.Name().begin(), control.Name().end());
    EXPECT_EQ(control.Left() - strip.Left(), place.left);
    EXPECT_EQ(control.Top() - strip.Top(), place.top);
    EXPECT_EQ(control.Width(), place.width);
    EXPECT_EQ(control.Height(), place.height);
}

void ExpectAt(const Control& control, Place place) {
    EXPECT_EQ(control.Left(), place.left);
    EXPECT_EQ(control.Top(), place.top);
    EXPECT_EQ(control.Width(), place.width);
    EXPECT_EQ(control.Height(), place.height);
}

TEST(QuickLayout, TheWindowIsABorderlessStripNamedQuickLaunchMadeAtItsFirstShow) {
    QuickApp t;
    EXPECT_EQ(t.quick().Caption(), L"QuickLaunch");
    EXPECT_EQ(t.quick().Style(), qs::ui::FormStyle::Borderless);
    EXPECT_TRUE(t.quick().WindowWaitsForShow());
    EXPECT_FALSE(t.quick().Visible());
}

TEST(QuickLayout, TheEightStripsStandInTwoRows) {
    QuickApp t;
    auto& q = t.quick();
    ExpectAt(q.PictureZeroBack, {0, 0, 492, 372});
    ExpectAt(q.PictureTotalBack, {0, 372, 492, 372});
    ExpectAt(q.PictureBrowseBack, {600, 0, 240, 372});
    ExpectAt(q.PictureTypeBack, {600, 372, 240, 372});
    ExpectAt(q.PictureChoiceBack, {840, 0, 1452, 372});
    ExpectAt(q.PictureRangeBack, {840, 372, 1452, 372});
    ExpectAt(q.PictureQuickBack, {2400, 0, 7812, 372});
    ExpectAt(q.PictureIndexBack, {2400, 372, 7812, 372});
    ExpectAt(q.CommandQuickClick, {2040, 120, 372, 252});
    EXPECT_FALSE(q.CommandQuickClick.Visible());
}

TEST(QuickLayout, EveryControlLiesOnItsStripAtItsPlace) {
    QuickApp t;
    auto& q = t.quick();
    ExpectOnStrip(q.ImageQuickZero, q.PictureZeroBack, {150, 90, 168, 168});
    ExpectOnStrip(q.LabelQuickTotal, q.PictureTotalBack, {24, 60, 372, 156});
    ExpectOnStrip(q.ImageQuickForward, q.PictureBrowseBack, {24, 0, 168, 168});
    ExpectOnStrip(q.ImageQuickBack, q.PictureBrowseBack, {24, 192, 168, 168});
    ExpectOnStrip(q.ImageQuickSelected, q.PictureTypeBack, {24, 60, 168, 168});
    ExpectOnStrip(q.ImageQuickChoice(1), q.PictureChoiceBack, {120, 90, 168, 168});
    ExpectOnStrip(q.ImageQuickChoice(0), q.PictureChoiceBack, {360, 90, 168, 168});
    ExpectOnStrip(q.ImageQuickChoice(2), q.PictureChoiceBack, {600, 90, 168, 168});
    ExpectOnStrip(q.ImageQuickChoice(3), q.PictureChoiceBack, {840, 90, 168, 168});
    ExpectOnStrip(q.ImageQuickChoice(4), q.PictureChoiceBack, {1080, 90, 168, 168});
    ExpectOnStrip(q.LabelQuickShowing, q.PictureRangeBack, {0, 60, 1404, 156});
    for (std::int16_t i = 0; i < 20; ++i) {
        ExpectOnStrip(q.ImageQuick(i), q.PictureQuickBack, {156 + 360 * i, 60, 168, 168});
        ExpectOnStrip(q.LabelQIndex(i), q.PictureIndexBack, {144 + 360 * i, 36, 204, 192});
    }
    ExpectOnStrip(q.ImageQuickHeight, q.PictureQuickBack, {7320, 90, 120, 120});
    ExpectOnStrip(q.ImageHideQuick, q.PictureQuickBack, {7560, 90, 120, 120});
    ExpectOnStrip(q.ImageQuickHeightA, q.PictureIndexBack, {7560, 60, 120, 120});
}

TEST(QuickLayout, TooltipsAndTextsAtDesignAreTheTablesOwn) {
    QuickApp t;
    auto& q = t.quick();
    EXPECT_EQ(q.ImageQuickZero.ToolTipText(), L"Minimize QuickLaunch On Screen");
    EXPECT_EQ(q.LabelQuickTotal.Caption(), L"Total");
    EXPECT_EQ(q.ImageQuickForward.ToolTipText(), L"Items Go Forward");
    EXPECT_EQ(q.ImageQuickBack.ToolTipText(), L"Items Go Back");
    EXPECT_EQ(q.ImageQuickChoice(1).ToolTipText(), L"Show Buttons Of Directory List");
    EXPECT_EQ(q.ImageQuickChoice(0).ToolTipText(), L"Show Buttons Of File List");
    EXPECT_EQ(q.ImageQuickChoice(2).ToolTipText(), L"Show Buttons Of Program List");
    EXPECT_EQ(q.ImageQuickChoice(3).ToolTipText(), L"Show Buttons Of Email List");
    EXPECT_EQ(q.ImageQuickChoice(4).ToolTipText(), L"Show Buttons Of Web URL List");
    EXPECT_EQ(q.LabelQuickShowing.Caption(), L"Select Item Type");
    for (std::int16_t i = 0; i < 20; ++i) {
        EXPECT_EQ(q.ImageQuick(i).ToolTipText(), L"Empty");
        EXPECT_EQ(q.LabelQIndex(i).Caption(), L"xx");
    }
    EXPECT_EQ(q.ImageQuickHeight.ToolTipText(), L"Show|Hide QuickLauncher Bottom Part");
    EXPECT_EQ(q.ImageHideQuick.ToolTipText(), L"Hide QuickLauncher");
    EXPECT_EQ(q.ImageQuickHeightA.ToolTipText(), L"Hide QuickLauncher Bottom Part");
}

TEST(QuickLayout, LoadSetsTheFullSizeNoPendingGroupAndThePreferredGroup) {
    QuickApp t;
    t.app.settings.QuickDefaultItem = 3;
    t.quick().SetWidth(588);
    t.quick().QuickPendingGroup = 2;
    t.quick().ImageQuick(7).Move(0, 0, 168, 168);
    t.LoadQuick();
    EXPECT_EQ(t.quick().ImageQuick(7).Left(), 2400 + 156 + 360 * 7);
    EXPECT_EQ(t.quick().ImageQuick(7).Top(), 60);
    EXPECT_EQ(t.quick().Width(), 10332);
    EXPECT_EQ(t.quick().Height(), 744);
    EXPECT_EQ(t.quick().QuickPendingGroup, -1);
    EXPECT_EQ(t.quick().QuickGroup, 3);
}

TEST(QuickLayout, LoadShowsTheGroupButtonsOfTheGroupsWithItemsOnly) {
    QuickApp t;
    t.AddItems(1, 2);
    t.AddItems(4, 1);
    t.LoadQuick();
    EXPECT_FALSE(t.quick().ImageQuickChoice(0).Visible());
    EXPECT_TRUE(t.quick().ImageQuickChoice(1).Visible());
    EXPECT_FALSE(t.quick().ImageQuickChoice(2).Visible());
    EXPECT_FALSE(t.quick().ImageQuickChoice(3).Visible());
    EXPECT_TRUE(t.quick().ImageQuickChoice(4).Visible());
    EXPECT_TRUE(t.bar().PictureShowQuick.Enabled());
}

TEST(QuickLayout, AGroupWithNoItemsHasItsGroupButtonHidden) {
    QuickApp t;
    t.AddItems(0, 3);
    t.LoadQuick();
    for (std::int16_t g = 1; g < 5; ++g) EXPECT_FALSE(t.quick().ImageQuickChoice(g).Visible()) << g;
    // After a group click too, an empty group's button stays hidden, blank.
    t.quick().ImageQuickChoice(0).Press();
    EXPECT_FALSE(t.quick().ImageQuickChoice(3).Visible());
    EXPECT_EQ(t.quick().ImageQuickChoice(3).Picture(),
              (qs::ui::PictureRef{qs::ui::PictureSlot::ImageMStar, t.app.settings.ThemeIndex}));
}

TEST(QuickLayout, WithTheFiveListsEmptyTheBarsQuickButtonIsDisabledAtLoad) {
    QuickApp t;
    t.LoadQuick();
    EXPECT_FALSE(t.bar().PictureShowQuick.Enabled());
    t.bar().PictureShowQuick.Press();
    EXPECT_FALSE(t.app.QuickOpen);
    EXPECT_FALSE(t.quick().Visible());
}

TEST(QuickLayout, TheButtonsOfNoGroupStayHiddenUntilAGroupIsShown) {
    QuickApp t;
    t.AddItems(2, 5);
    t.LoadQuick();
    EXPECT_TRUE(t.ShownItems().empty());
    EXPECT_FALSE(t.quick().ImageQuickForward.Visible());
    EXPECT_FALSE(t.quick().ImageQuickBack.Visible());
}

}  // namespace
