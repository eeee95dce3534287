// The Preferences pane for the keyboard and screen readers: every box and
// option named by its caption, Save named by its label, the tab order down
// the pane.
#include <gtest/gtest.h>

#include "choose_tool_setup.h"

namespace qs::test {
namespace {

TEST(ChooseToolKeys, SaveIsNamedByItsLabelAndTheCloseButtonByItsTooltip) {
    PrefsApp t;
    EXPECT_EQ(t.pane().ImageOptionSave.AccessibleName(), L"Preferences - Save");
    EXPECT_EQ(t.choose().PictureHideTool.ToolTipText(), L"Close");
}

TEST(ChooseToolKeys, TheTabGoesDownTheBoxesAsTheyStandThenTheOptionsThenSave) {
    PrefsApp t;
    PreferencesPane& p = t.pane();
    std::vector<const ui::Control*> order;
    for (const std::int16_t i : {0, 5, 1, 2, 4, 3}) order.push_back(&p.CheckOptionMain(i));
    for (const auto& o : p.RadioOptionFontSize) order.push_back(o.get());
    for (const auto& o : p.OptionQuickItem) order.push_back(o.get());
    for (const auto& o : p.OptionTheme) order.push_back(o.get());
    order.push_back(&p.ImageOptionSave);
    for (std::size_t i = 1; i < order.size(); ++i) {
        EXPECT_LT(order[i - 1]->TabIndex(), order[i]->TabIndex()) << i;
        // The boxes stand one below the other in that order.
        if (i < 6) {
            EXPECT_LT(order[i - 1]->Top(), order[i]->Top()) << i;
        }
    }
    EXPECT_LT(p.ImageOptionSave.TabIndex(), t.choose().PictureHideTool.TabIndex());
    for (const ui::Frame* area : {&p.FrameFont, &p.FrameQuick, &p.FrameTheme}) {
        EXPECT_GT(area->TabIndex(), p.ImageOptionSave.TabIndex());
    }
}

TEST(ChooseToolKeys, SpaceOnABoxTicksItAsAClickDoes) {
    PrefsApp t;
    t.OpenPane();
    // A real check box turns Space into a click; the model's click is the
    // same event.
    t.pane().CheckOptionMain(2).UserClicked();
    EXPECT_EQ(t.pane().CheckOptionMain(2).Value(), 1);
    EXPECT_EQ(t.settings().OptionStartMinimized, 1);
    EXPECT_TRUE(t.SaveShown());
}

TEST(ChooseToolKeys, EscOnTheCloseButtonClosesThePaneAndKeepsThePendingChange) {
    PrefsApp t;
    t.OpenPane();
    t.Click(1);
    std::int16_t esc = 27;
    t.choose().PictureHideTool.KeyPress(esc);
    EXPECT_FALSE(t.choose().Visible());
    EXPECT_EQ(t.settings().OptionWordEdit, 59);
    EXPECT_EQ(t.settings().OptionWord, 57);
}

}  // namespace
}  // namespace qs::test
