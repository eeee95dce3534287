// The counts the soak test reads: each owning handle type counts what it
// holds by kind and stops counting it when it closes or lets go of it, a
// form's window and its children count while the form is loaded, and the
// heap count follows what operator new hands out.
#include <gtest/gtest.h>

#include <windows.h>

#include <memory>
#include <utility>

#include "backend_test_form.h"
#include "handles.h"
#include "object_counts.h"
#include "soak_heap.h"
#include "win32_backend.h"
#include "window_test_support.h"

namespace {

using qs::win::CountedKind;
using qs::win::LiveCount;

TEST(SoakCounts, EachGdiHandleCountsByItsKindWhileHeldAndAMoveKeepsTheCount) {
    const auto fonts = LiveCount(CountedKind::Font);
    const auto brushes = LiveCount(CountedKind::Brush);
    const auto bitmaps = LiveCount(CountedKind::Bitmap);
    {
        LOGFONTW look{};
        look.lfHeight = -12;
        qs::win::FontHandle font(::CreateFontIndirectW(&look));
        qs::win::BrushHandle brush(::CreateSolidBrush(RGB(1, 2, 3)));
        qs::win::BitmapHandle bitmap(::CreateBitmap(4, 4, 1, 32, nullptr));
        ASSERT_TRUE(font && brush && bitmap);
        EXPECT_EQ(LiveCount(CountedKind::Font), fonts + 1);
        EXPECT_EQ(LiveCount(CountedKind::Brush), brushes + 1);
        EXPECT_EQ(LiveCount(CountedKind::Bitmap), bitmaps + 1);
        qs::win::BrushHandle moved(std::move(brush));
        EXPECT_EQ(LiveCount(CountedKind::Brush), brushes + 1);
        moved.Reset(::CreateSolidBrush(RGB(4, 5, 6)));
        EXPECT_EQ(LiveCount(CountedKind::Brush), brushes + 1);
        brush = std::move(moved);
        EXPECT_EQ(LiveCount(CountedKind::Brush), brushes + 1);
    }
    EXPECT_EQ(LiveCount(CountedKind::Font), fonts);
    EXPECT_EQ(LiveCount(CountedKind::Brush), brushes);
    EXPECT_EQ(LiveCount(CountedKind::Bitmap), bitmaps);
}

TEST(SoakCounts, AReleasedHandleIsNoLongerCounted) {
    const auto brushes = LiveCount(CountedKind::Brush);
    qs::win::BrushHandle brush(::CreateSolidBrush(RGB(7, 8, 9)));
    const HBRUSH given = brush.Release();
    EXPECT_EQ(LiveCount(CountedKind::Brush), brushes);
    ::DeleteObject(given);
}

TEST(SoakCounts, DeviceContextsCountForTheirScope) {
    const auto dcs = LiveCount(CountedKind::Dc);
    {
        const qs::win::WindowDc screen(nullptr);
        ASSERT_NE(screen.Get(), nullptr);
        EXPECT_EQ(LiveCount(CountedKind::Dc), dcs + 1);
        const qs::win::MemoryDc memory(screen.Get());
        EXPECT_EQ(LiveCount(CountedKind::Dc), dcs + 2);
    }
    EXPECT_EQ(LiveCount(CountedKind::Dc), dcs);
}

TEST(SoakCounts, AFormsWindowsAndTheirTipsCountWhileItIsLoaded) {
    qs::test::Pump();
    qs::win::Win32Backend backend(::GetModuleHandleW(nullptr));
    const auto windows = LiveCount(CountedKind::Window);
    qs::test::TestForm form;
    form.Button.SetToolTipText(L"A tip, made once the form has shown");
    form.SetBackend(&backend);
    form.Load();
    form.Show();
    // The form, its text box, button and label; the hidden list has none yet.
    EXPECT_EQ(LiveCount(CountedKind::Window), windows + 4);
    EXPECT_TRUE(qs::test::PumpUntil([&] { return LiveCount(CountedKind::Window) == windows + 5; }))
        << "the tip window";
    form.HiddenList.SetVisible(true);
    EXPECT_EQ(LiveCount(CountedKind::Window), windows + 6);
    form.Unload();
    EXPECT_EQ(LiveCount(CountedKind::Window), windows);
    qs::test::Pump();
}

TEST(SoakCounts, TheHeapCountFollowsWhatOperatorNewHandsOut) {
    const auto bytes = qs::test::HeapBytesHeld();
    const auto blocks = qs::test::HeapBlocksHeld();
    auto block = std::make_unique<char[]>(10000);
    block[9999] = 1;
    EXPECT_EQ(qs::test::HeapBytesHeld(), bytes + 10000);
    EXPECT_EQ(qs::test::HeapBlocksHeld(), blocks + 1);
    block.reset();
    EXPECT_EQ(qs::test::HeapBytesHeld(), bytes);
    EXPECT_EQ(qs::test::HeapBlocksHeld(), blocks);
}

}  // namespace
