// A form's window made from what its Load event left, in tab order, or not
// at all while it waits for its first showing; a text box that takes drops
// becomes a drop target once its form has shown.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

#include "backend_test_form.h"
#include "dpi.h"

namespace qs::test {
namespace {

TEST_F(Win32BackendTest, AFormWhoseWindowWaitsForItsShowingHasNoneUntilShownThenShowsItsState) {
    TestForm pane;
    pane.SetCaption(L"QuillstartWaitingPane");
    pane.SetWindowWaitsForShow(true);
    pane.SetBackend(&backend);
    pane.Load();
    EXPECT_EQ(backend.WindowOf(pane), nullptr);
    EXPECT_EQ(::FindWindowW(nullptr, L"QuillstartWaitingPane"), nullptr);
    pane.Box.SetText(L"written while it had no window");
    pane.Show();
    const HWND box = EditOfShownForm(backend, pane);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box), L"written while it had no window");
    const HWND shown = ::GetParent(box);
    pane.Unload();
    EXPECT_FALSE(::IsWindow(shown));
}

TEST_F(Win32BackendTest, AWaitingFormUnloadedBeforeItsShowingLeavesNothingBehind) {
    TestForm pane;
    pane.SetWindowWaitsForShow(true);
    pane.SetBackend(&backend);
    pane.Load();
    pane.Unload();
    pane.Load();
    EXPECT_EQ(backend.WindowOf(pane), nullptr);
    pane.Show();
    EXPECT_NE(backend.WindowOf(pane), nullptr);
    pane.Unload();
}

TEST_F(Win32BackendTest, ControlsWhoseTabIndexesReverseTheirOrderAreTabbedByIndex) {
    TestForm pane;
    pane.SetCaption(L"QuillstartTabPane");
    pane.Button.SetTabIndex(0);
    pane.Box.SetTabIndex(1);
    pane.SetBackend(&backend);
    pane.Load();
    const HWND shown = backend.WindowOf(pane);
    ASSERT_NE(shown, nullptr);
    const HWND button = ::FindWindowExW(shown, nullptr, L"BUTTON", nullptr);
    const HWND box = ::FindWindowExW(shown, nullptr, L"EDIT", nullptr);
    ASSERT_NE(button, nullptr);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(::GetWindow(shown, GW_CHILD), button);
    EXPECT_EQ(::GetNextDlgTabItem(shown, button, FALSE), box);
    EXPECT_EQ(::GetNextDlgTabItem(shown, box, FALSE), button);
    pane.Unload();
}

TEST_F(Win32BackendTest, TheWindowOfAFormIsMadeAsItsLoadEventLeftIt) {
    TestForm pane;
    pane.SetCaption(L"QuillstartLoadedPane");
    HWND duringLoad = reinterpret_cast<HWND>(1);
    pane.LoadEvent = [&] {
        duringLoad = backend.WindowOf(pane);
        pane.Box.SetText(L"set by the Load event");
        pane.Button.Move(300, 0, 900, 300);
        pane.Show();
    };
    pane.SetBackend(&backend);
    pane.Load();
    EXPECT_EQ(duringLoad, nullptr);
    const HWND box = EditOfShownForm(backend, pane);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box), L"set by the Load event");
    const HWND shown = ::GetParent(box);
    const HWND button = ::FindWindowExW(shown, nullptr, L"BUTTON", nullptr);
    ASSERT_NE(button, nullptr);
    RECT place{};
    ::GetWindowRect(button, &place);
    ::MapWindowPoints(HWND_DESKTOP, shown, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, qs::win::TwipsToPixels(300, qs::win::WindowDpi(shown)));
    pane.Unload();
}

TEST_F(Win32BackendTest, ALoadEventThatUnloadsItsFormLeavesNoWindow) {
    TestForm pane;
    pane.SetCaption(L"QuillstartRefusedPane");
    pane.LoadEvent = [&pane] { pane.Unload(); };
    pane.SetBackend(&backend);
    pane.Load();
    EXPECT_FALSE(pane.IsLoaded());
    EXPECT_EQ(backend.WindowOf(pane), nullptr);
    EXPECT_EQ(::FindWindowW(nullptr, L"QuillstartRefusedPane"), nullptr);
}

// A drop target that takes nothing: only its registration is looked at.
class RefusingDropTarget : public IDropTarget {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IDropTarget) {
            *object = static_cast<IDropTarget*>(this);
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject*, DWORD, POINTL, DWORD* effect) override {
        *effect = DROPEFFECT_NONE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
        *effect = DROPEFFECT_NONE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject*, DWORD, POINTL, DWORD* effect) override {
        *effect = DROPEFFECT_NONE;
        return S_OK;
    }
};

TEST_F(Win32BackendTest, ABoxThatTakesDropsIsADropTargetOnceItsFormHasShownAndNoLongerOnceItsWindowIsGone) {
    TestForm pane;
    pane.SetCaption(L"QuillstartDropPane");
    pane.Box.SetAcceptsTextDrop(true);
    pane.SetBackend(&backend);
    pane.Load();
    const HWND shown = backend.WindowOf(pane);
    ASSERT_NE(shown, nullptr);
    const HWND box = ::FindWindowExW(shown, nullptr, L"EDIT", nullptr);
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(SUCCEEDED(::OleInitialize(nullptr)));
    RefusingDropTarget other;
    // Not yet shown: the box is no drop target, so another may register.
    ASSERT_EQ(::RegisterDragDrop(box, &other), S_OK);
    EXPECT_EQ(::RevokeDragDrop(box), S_OK);
    pane.Show();
    HRESULT again = S_OK;
    EXPECT_TRUE(qs::test::PumpUntil([&] {
        again = ::RegisterDragDrop(box, &other);
        if (SUCCEEDED(again)) ::RevokeDragDrop(box);
        return again == DRAGDROP_E_ALREADYREGISTERED;
    }));
    // The box's window is destroyed with its form: by the time its own
    // handling of WM_DESTROY is done, its target has been taken back.
    struct DestroyProbe {
        RefusingDropTarget* other;
        HRESULT afterDestroy = E_FAIL;
    } probe{&other};
    const SUBCLASSPROC onDestroy = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR data) -> LRESULT {
        const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
        if (message != WM_DESTROY) return result;
        auto* p = reinterpret_cast<DestroyProbe*>(data);
        p->afterDestroy = ::RegisterDragDrop(window, p->other);
        if (SUCCEEDED(p->afterDestroy)) ::RevokeDragDrop(window);
        return result;
    };
    ASSERT_TRUE(::SetWindowSubclass(box, onDestroy, 7, reinterpret_cast<DWORD_PTR>(&probe)));
    pane.Unload();
    EXPECT_FALSE(::IsWindow(box));
    EXPECT_EQ(probe.afterDestroy, S_OK);
    ::OleUninitialize();
}

}  // namespace
}  // namespace qs::test
