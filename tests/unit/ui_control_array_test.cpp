// Control arrays, colours and the item-by-item list notifications of the
// control runtime.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/failure.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/list_box.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace {

using qs::ui::ControlArray;
using qs::ui::Form;
using qs::ui::FormStyle;
using qs::ui::PictureBox;

TEST(UiControlArray, ElementsAreNamedWithTheirIndex) {
    Form form{L"frmTest", FormStyle::Borderless};
    ControlArray<PictureBox> menu{form, L"PictureMenu", 5};
    EXPECT_EQ(menu.Count(), 5);
    EXPECT_EQ(menu(0).Name(), L"PictureMenu(0)");
    EXPECT_EQ(menu(4).Name(), L"PictureMenu(4)");
    EXPECT_EQ(form.Controls().size(), 5u);
}

TEST(UiControlArray, AnIndexOutsideTheArrayIsASubscriptFailure) {
    Form form{L"frmTest", FormStyle::Borderless};
    ControlArray<PictureBox> menu{form, L"PictureMenu", 5};
    EXPECT_THROW(menu(5), qs::SubscriptOutOfRange);
    EXPECT_THROW(menu(-1), qs::SubscriptOutOfRange);
}

TEST(UiControlArray, OneHandlerHearsEveryElementWithItsIndex) {
    Form form{L"frmTest", FormStyle::Borderless};
    ControlArray<PictureBox> menu{form, L"PictureMenu", 5};
    std::vector<int> clicked;
    menu.OnEach(&PictureBox::Click, [&](std::int16_t index) { clicked.push_back(index); });
    menu(3).Press();
    menu(0).Press();
    EXPECT_EQ(clicked, (std::vector<int>{3, 0}));
}

TEST(UiControlArray, EventArgumentsFollowTheIndex) {
    Form form{L"frmTest", FormStyle::Borderless};
    ControlArray<PictureBox> menu{form, L"PictureMenu", 2};
    std::vector<std::pair<int, int>> downs;
    menu.OnEach(&PictureBox::MouseDown, [&](std::int16_t index, std::int16_t button, std::int16_t, std::int32_t,
                                            std::int32_t) { downs.emplace_back(index, button); });
    menu(1).UserMouseDown(qs::ui::RightButton, 0, 0, 0);
    EXPECT_EQ(downs, (std::vector<std::pair<int, int>>{{1, qs::ui::RightButton}}));
}

struct ListPeer : qs::ui::ControlPeer {
    std::vector<std::string> calls;
    void Changed(qs::ui::Property what) override {
        if (what == qs::ui::Property::Colors) calls.push_back("colors");
    }
    void ItemInserted(std::int32_t i) override { calls.push_back("insert " + std::to_string(i)); }
    void ItemRemoved(std::int32_t i) override { calls.push_back("remove " + std::to_string(i)); }
    void ItemChanged(std::int32_t i) override { calls.push_back("change " + std::to_string(i)); }
    void ItemsCleared() override { calls.push_back("clear"); }
};

TEST(UiListBox, ThePeerHearsEachChangeAtItsPositionNeverTheWholeList) {
    Form form{L"frmTest", FormStyle::Borderless};
    qs::ui::ListBox list{form, L"ListTest", true};
    ListPeer peer;
    list.AttachPeer(&peer);
    list.AddItem(L"beta");
    list.AddItem(L"alpha");
    list.AddItem(L"gamma");
    list.RemoveItem(1);
    list.SetList(0, L"aleph");
    list.Clear();
    EXPECT_EQ(peer.calls, (std::vector<std::string>{"insert 0", "insert 0", "insert 2", "remove 1", "change 0",
                                                    "clear"}));
}

TEST(UiColors, AColourChangeReachesThePeerOnceAndASameColourNot) {
    Form form{L"frmTest", FormStyle::Borderless};
    qs::ui::TextBox box{form, L"TextTest"};
    ListPeer peer;
    box.AttachPeer(&peer);
    EXPECT_EQ(box.BackColor(), qs::ui::DefaultColor);
    box.SetBackColor(qs::ui::Rgb(220, 220, 220));
    box.SetBackColor(qs::ui::Rgb(220, 220, 220));
    box.SetForeColor(qs::ui::SystemButtonText);
    EXPECT_EQ(peer.calls, (std::vector<std::string>{"colors", "colors"}));
    EXPECT_EQ(box.BackColor(), 0xDCDCDCu);
    EXPECT_TRUE(qs::ui::IsSystemColor(box.ForeColor()));
    EXPECT_EQ(qs::ui::SystemColorIndex(box.ForeColor()), 18);
}

TEST(UiColors, RedLiesInTheLowByte) {
    EXPECT_EQ(qs::ui::Rgb(150, 85, 105), 0x695596u);
    EXPECT_EQ(qs::ui::RedOf(0x695596u), 150);
    EXPECT_EQ(qs::ui::BlueOf(0x695596u), 105);
    EXPECT_FALSE(qs::ui::IsSystemColor(qs::ui::Rgb(255, 255, 255)));
}

}  // namespace
