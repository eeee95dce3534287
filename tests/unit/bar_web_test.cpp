// The web pane: a URL and a Launch Name added to the Web URL group by Enter.
#include <gtest/gtest.h>

#include "bar_app.h"
#include "data/list_add.h"
#include "shown_messages.h"

namespace {

using qs::test::BarApp;
using qs::test::ShownMessages;

struct WebPane : ::testing::Test {
    BarApp t;
    void SetUp() override { t.bar().PictureWeb.Press(); }
    qs::ui::TextBox& url() { return t.bar().TextWebUrl; }
    qs::ui::TextBox& name() { return t.bar().TextWebName; }
    qs::ui::ListBox& names() { return t.app.frmChoose.ComboListItemName(4); }
    qs::ui::ListBox& paths() { return t.app.frmChoose.ComboListItemPath(4); }
};

TEST_F(WebPane, AUrlShowsTheNameBoxAndEmptyingItHidesAndEmptiesIt) {
    url().TypeText(L"h");
    EXPECT_TRUE(name().Visible());
    EXPECT_TRUE(t.bar().LabelWebName.Visible());
    name().TypeText(L"news");
    url().SetText(L"");
    EXPECT_FALSE(name().Visible());
    EXPECT_FALSE(t.bar().LabelWebName.Visible());
    EXPECT_EQ(name().Text(), L"");
}

TEST_F(WebPane, EnterWithBothBoxesFilledAddsAWebItemAndEmptiesTheBoxes) {
    t.Type(L"w-");
    url().TypeText(L"http://news.example/");
    name().TypeText(L"news");
    name().TypeKey(13);
    ASSERT_EQ(names().ListCount(), 1);
    EXPECT_EQ(names().List(0), L"news");
    EXPECT_EQ(paths().List(0), L"http://news.example/");
    EXPECT_EQ(url().Text(), L"");
    EXPECT_EQ(name().Text(), L"");
    EXPECT_EQ(t.Text(), L"");
    EXPECT_TRUE(ShownMessages(t).empty());
}

TEST_F(WebPane, EnterInTheUrlBoxAddsToo) {
    url().TypeText(L"http://a.example/");
    name().TypeText(L"a");
    url().TypeKey(13);
    EXPECT_EQ(names().ListCount(), 1);
}

TEST_F(WebPane, EnterWithAnEmptyNameAddsNothing) {
    url().TypeText(L"http://a.example/");
    url().TypeKey(13);
    EXPECT_EQ(names().ListCount(), 0);
    EXPECT_EQ(url().Text(), L"http://a.example/");
}

TEST_F(WebPane, AnAddedItemLaunchesByItsWebCode) {
    url().TypeText(L"http://news.example/");
    name().TypeText(L"news");
    name().TypeKey(13);
    t.Type(L"w-ne");
    t.Enter();
    EXPECT_EQ(t.LastTarget(), L"http://news.example/");
}

TEST_F(WebPane, AUrlAlreadyListedIsRefusedWithItsMessageAndTheUrlBoxIsEmptied) {
    t.AddItem(4, L"news", L"http://news.example/");
    url().TypeText(L"http://news.example/");
    name().TypeText(L"News");
    name().TypeKey(13);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    // The path is checked first: only the path is reported.
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessagePathAlreadyListed");
    EXPECT_NE(ShownMessages(t)[0].body.find(L"news"), std::wstring::npos);
    EXPECT_EQ(url().Text(), L"");
    EXPECT_EQ(names().ListCount(), 1);
}

TEST_F(WebPane, ANameTakenInAnyCaseIsRefusedAndTheNameBoxIsEmptied) {
    t.AddItem(4, L"News", L"http://news.example/");
    url().TypeText(L"http://other.example/");
    name().TypeText(L"nEWS");
    name().TypeKey(13);
    ASSERT_EQ(ShownMessages(t).size(), 1u);
    EXPECT_EQ(ShownMessages(t)[0].key, L"MessageNameAlreadyListed");
    EXPECT_EQ(name().Text(), L"");
    EXPECT_EQ(url().Text(), L"http://other.example/");
    EXPECT_EQ(names().ListCount(), 1);
}

TEST(ListAdd, ThePathCompareIsExactSoCaseMakesADifferentPath) {
    BarApp t;
    t.AddItem(4, L"news", L"http://News.example/");
    auto& names = t.app.frmChoose.ComboListItemName(4);
    auto& paths = t.app.frmChoose.ComboListItemPath(4);
    EXPECT_EQ(qs::ActionConfirmAddPath(t.app, L"http://news.example/", paths, names), L"");
    EXPECT_EQ(qs::ActionConfirmAddPath(t.app, L"http://News.example/", paths, names), L"MessagePathAlreadyListed");
    EXPECT_EQ(t.app.message.DuplicateItemName, L"news");
}

TEST(ListAdd, TheSameNameInAnotherGroupIsAllowed) {
    BarApp t;
    t.AddItem(2, L"news", L"C:\\News.exe");
    EXPECT_EQ(qs::ActionConfirmAddName(t.app, L"NEWS", t.app.frmChoose.ComboListItemName(4)), L"");
    EXPECT_EQ(qs::ActionConfirmAddName(t.app, L"NEWS", t.app.frmChoose.ComboListItemName(2)),
              L"MessageNameAlreadyListed");
}

TEST(ListAdd, AWebItemsUrlFollowsItsNameInTheSortedList) {
    BarApp t;
    qs::ActionListAddWeb(t.app, L"zeta", L"http://z.example/");
    qs::ActionListAddWeb(t.app, L"alpha", L"http://a.example/");
    auto& names = t.app.frmChoose.ComboListItemName(4);
    auto& paths = t.app.frmChoose.ComboListItemPath(4);
    EXPECT_EQ(names.List(0), L"alpha");
    EXPECT_EQ(paths.List(0), L"http://a.example/");
    EXPECT_EQ(paths.List(1), L"http://z.example/");
}

}  // namespace
