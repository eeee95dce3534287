#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "common/failure.h"
#include "common/text_case.h"
#include "ui/form.h"
#include "ui/list_box.h"

namespace {

using qs::ui::ListBox;

std::wstring RandomText(std::mt19937& rng) {
    static const std::wstring letters = L"aAbBcC\u00e9\u00c9zZ ";
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::uniform_int_distribution<int> length(0, 4);
    std::wstring text;
    for (int n = length(rng); n > 0; --n) text.push_back(letters[pick(rng)]);
    return text;
}

// A sorted list, kept the plain way, to compare the control with.
struct Model {
    std::vector<std::wstring> items;
    std::int32_t Add(const std::wstring& item) {
        const auto at = std::upper_bound(items.begin(), items.end(), item, [](const auto& a, const auto& b) {
            return qs::CompareNoCase(a, b) < 0;
        });
        const auto index = static_cast<std::int32_t>(at - items.begin());
        items.insert(at, item);
        return index;
    }
    std::int32_t FindExact(const std::wstring& item) const {
        const auto at = std::find(items.begin(), items.end(), item);
        return at == items.end() ? -1 : static_cast<std::int32_t>(at - items.begin());
    }
};

TEST(ListBoxBlocks, ThousandsOfRandomAddsAndRemovesMatchAPlainSortedList) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    ListBox list{form, L"ComboX", true};
    Model model;
    std::mt19937 rng(11);
    for (int step = 0; step < 6000; ++step) {
        const std::wstring text = RandomText(rng);
        if (rng() % 4 == 0 && list.ListCount() > 0) {
            const auto at = static_cast<std::int32_t>(rng() % static_cast<unsigned>(list.ListCount()));
            list.RemoveItem(at);
            model.items.erase(model.items.begin() + at);
        } else {
            ASSERT_EQ(list.AddItem(text), model.Add(text));
        }
        ASSERT_EQ(list.FindExact(text), model.FindExact(text));
    }
    ASSERT_EQ(list.Items(), model.items);
    for (std::int32_t i = 0; i < list.ListCount(); ++i) ASSERT_EQ(list.List(i), model.items[static_cast<std::size_t>(i)]);
}

TEST(ListBoxBlocks, UnsortedListInsertsAtAnyPositionAcrossBlockBoundaries) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    ListBox list{form, L"ComboX", false};
    std::vector<std::wstring> model;
    std::mt19937 rng(5);
    for (int i = 0; i < 3000; ++i) {
        const auto at = static_cast<std::int32_t>(rng() % static_cast<unsigned>(list.ListCount() + 1));
        const std::wstring text = std::to_wstring(i);
        list.AddItem(text, at);
        model.insert(model.begin() + at, text);
    }
    list.SetList(1234, L"changed");
    model[1234] = L"changed";
    EXPECT_EQ(list.Items(), model);
    EXPECT_EQ(list.FindExact(L"changed"), 1234);
    EXPECT_THROW(list.AddItem(L"x", list.ListCount() + 1), qs::SubscriptOutOfRange);
    EXPECT_THROW(list.List(list.ListCount()), qs::SubscriptOutOfRange);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_TRUE(list.Items().empty());
}

TEST(ListBoxBlocks, AClearedListFillsAgainAcrossBlocksAsANewOne) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    ListBox list{form, L"ComboX", true};
    std::mt19937 rng(3);
    for (int round = 0; round < 3; ++round) {
        Model model;
        // Several blocks' worth, then a short list, then several again.
        const int count = round == 1 ? 5 : 1500;
        for (int i = 0; i < count; ++i) {
            const std::wstring text = RandomText(rng);
            ASSERT_EQ(list.AddItem(text), model.Add(text));
        }
        ASSERT_EQ(list.Items(), model.items);
        for (std::int32_t i = 0; i < list.ListCount(); ++i)
            ASSERT_EQ(list.List(i), model.items[static_cast<std::size_t>(i)]);
        list.Clear();
        EXPECT_EQ(list.ListCount(), 0);
        EXPECT_TRUE(list.Items().empty());
        EXPECT_THROW(list.List(0), qs::SubscriptOutOfRange);
    }
}

TEST(ListBoxBlocks, ItemsSeesEveryChangeAfterItWasRead) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    ListBox list{form, L"ComboX", true};
    list.AddItem(L"b");
    EXPECT_EQ(list.Items(), (std::vector<std::wstring>{L"b"}));
    list.AddItem(L"a");
    EXPECT_EQ(list.Items(), (std::vector<std::wstring>{L"a", L"b"}));
    list.RemoveItem(1);
    EXPECT_EQ(list.Items(), (std::vector<std::wstring>{L"a"}));
}

TEST(ListBoxBlocks, SelectionFollowsInsertsAndRemovals) {
    qs::ui::Form form{L"frmTest", qs::ui::FormStyle::Borderless};
    ListBox list{form, L"ComboX", true};
    list.AddItem(L"m");
    list.SetListIndex(0);
    list.AddItem(L"a");
    EXPECT_EQ(list.ListIndex(), 1);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 0);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), -1);
}

}  // namespace
