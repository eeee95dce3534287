// The picture button, the check box and the label font of the control runtime.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/check_box.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"

namespace {

using qs::ui::CheckBox;
using qs::ui::Form;
using qs::ui::FormStyle;
using qs::ui::PictureBox;

struct RecordingPeer : qs::ui::ControlPeer {
    std::vector<qs::ui::Property> changes;
    void Changed(qs::ui::Property what) override { changes.push_back(what); }
};

TEST(UiPictureBox, PressRunsMouseDownMouseUpThenClick) {
    Form form{L"frmTest", FormStyle::Dialog};
    PictureBox image{form, L"ImageTest"};
    std::vector<std::string> order;
    image.MouseDown = [&](std::int16_t button, std::int16_t, std::int32_t, std::int32_t) {
        EXPECT_EQ(button, qs::ui::LeftButton);
        order.push_back("down");
    };
    image.MouseUp = [&](std::int16_t, std::int16_t, std::int32_t, std::int32_t) { order.push_back("up"); };
    image.Click = [&] { order.push_back("click"); };
    image.Press();
    EXPECT_EQ(order, (std::vector<std::string>{"down", "up", "click"}));
}

TEST(UiPictureBox, HiddenPictureTakesNoPress) {
    Form form{L"frmTest", FormStyle::Dialog};
    PictureBox image{form, L"ImageTest"};
    int clicks = 0;
    image.Click = [&] { ++clicks; };
    image.SetVisible(false);
    image.Press();
    EXPECT_EQ(clicks, 0);
}

TEST(UiPictureBox, PictureChangeReachesThePeer) {
    Form form{L"frmTest", FormStyle::Dialog};
    PictureBox image{form, L"ImageTest"};
    RecordingPeer peer;
    image.AttachPeer(&peer);
    image.SetPicture(qs::ui::HolderPicture(qs::ui::PictureSlot::ImageMU, 2));
    EXPECT_EQ(image.Picture(), (qs::ui::PictureRef{qs::ui::PictureSlot::ImageMU, 2}));
    EXPECT_EQ(peer.changes, (std::vector<qs::ui::Property>{qs::ui::Property::Picture}));
}

TEST(UiCheckBox, ValueIsZeroOrOneAndAChangeFiresClick) {
    Form form{L"frmTest", FormStyle::Dialog};
    CheckBox box{form, L"CheckTest", L"Caption"};
    int clicks = 0;
    box.Click = [&] { ++clicks; };
    box.SetValue(5);
    EXPECT_EQ(box.Value(), 1);
    box.SetValue(1);
    EXPECT_EQ(clicks, 1);
    box.SetValue(0);
    EXPECT_EQ(box.Value(), 0);
    EXPECT_EQ(clicks, 2);
}

TEST(UiCheckBox, UserClickToggles) {
    Form form{L"frmTest", FormStyle::Dialog};
    CheckBox box{form, L"CheckTest"};
    box.UserClicked();
    EXPECT_EQ(box.Value(), 1);
    box.UserClicked();
    EXPECT_EQ(box.Value(), 0);
}

TEST(UiControl, TabIndexReachesThePeer) {
    Form form{L"frmTest", FormStyle::Dialog};
    PictureBox image{form, L"ImageTest"};
    RecordingPeer peer;
    image.AttachPeer(&peer);
    image.SetTabIndex(2);
    EXPECT_EQ(image.TabIndex(), 2);
    EXPECT_EQ(peer.changes, (std::vector<qs::ui::Property>{qs::ui::Property::TabIndex}));
}

}  // namespace

namespace {

TEST(UiLabel, FontStartsAsTheFormsAndTellsThePeerWhenSet) {
    Form form{L"frmTest", FormStyle::Dialog};
    qs::ui::Label label{form, L"LabelTest", L"Heading"};
    EXPECT_EQ(label.FontSize(), 0);
    EXPECT_FALSE(label.FontBold());
    RecordingPeer peer;
    label.AttachPeer(&peer);
    label.SetFont(12, true);
    EXPECT_EQ(label.FontSize(), 12);
    EXPECT_TRUE(label.FontBold());
    EXPECT_EQ(peer.changes, (std::vector<qs::ui::Property>{qs::ui::Property::Font}));
}

}  // namespace
