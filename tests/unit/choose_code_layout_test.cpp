// The Code And Command pane's places: everything lies inside the pane and
// nothing lies over anything else, the explanations have two lines of room
// that wrap without a scroll bar, and the example is given the pane's width.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "choose_setup.h"

namespace qs::test {
namespace {

struct ChooseCodeLayout : ::testing::Test {
    ChooseApp t;
    FrmChoose& form = t.choose();
    CodeCommandPane& pane = form.Code;

    std::vector<ui::Control*> InPane() const {
        std::vector<ui::Control*> inside;
        for (ui::Control* c : form.Controls()) {
            if (c->Container() == &form.PictureCode) inside.push_back(c);
        }
        return inside;
    }
};

bool Overlap(const ui::Control& a, const ui::Control& b) {
    return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() && a.Top() < b.Top() + b.Height() &&
           b.Top() < a.Top() + a.Height();
}

TEST_F(ChooseCodeLayout, EveryControlLiesInsideThePane) {
    const std::vector<ui::Control*> inside = InPane();
    ASSERT_GT(inside.size(), 30u);
    // A pane's controls are placed in the form's terms.
    const ui::Frame& area = form.PictureCode;
    for (const ui::Control* c : inside) {
        EXPECT_GE(c->Left(), area.Left()) << c->Name();
        EXPECT_GE(c->Top(), area.Top()) << c->Name();
        EXPECT_LE(c->Left() + c->Width(), area.Left() + area.Width()) << c->Name();
        EXPECT_LE(c->Top() + c->Height(), area.Top() + area.Height()) << c->Name();
    }
}

TEST_F(ChooseCodeLayout, NoControlLiesOverAnother) {
    const std::vector<ui::Control*> inside = InPane();
    for (std::size_t i = 0; i < inside.size(); ++i) {
        for (std::size_t j = i + 1; j < inside.size(); ++j) {
            EXPECT_FALSE(Overlap(*inside[i], *inside[j])) << inside[i]->Name() << " and " << inside[j]->Name();
        }
    }
}

TEST_F(ChooseCodeLayout, TheHeadingEndsBeforeTheCloseButton) {
    EXPECT_LE(pane.LabelCaption.Left() + pane.LabelCaption.Width(), form.PictureHideCode.Left());
}

TEST_F(ChooseCodeLayout, ExplanationsWrapOnTwoLinesWithoutAScrollBar) {
    for (const ui::TextBox* box : {&pane.TextCode1st, &pane.TextCode2nd}) {
        EXPECT_TRUE(box->MultiLine()) << box->Name();
        EXPECT_FALSE(box->VerticalScrollBar()) << box->Name();
        EXPECT_GE(box->Height(), 2 * pane.ComboCode1st.Height() - 180) << box->Name();
    }
    EXPECT_FALSE(pane.TextCommand.MultiLine());
}

TEST_F(ChooseCodeLayout, TheExampleIsWiderThanTheLists) {
    EXPECT_GT(pane.TextCommand.Width(), pane.ComboCode1st.Width() + 1000);
    EXPECT_EQ(pane.TextCommand.Left() + pane.TextCommand.Width(),
              pane.ComboCode1st.Left() + pane.ComboCode1st.Width());
}

}  // namespace
}  // namespace qs::test
