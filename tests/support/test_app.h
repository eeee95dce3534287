#pragma once
// A fresh program state over a fake system, with the tables filled and the
// bar loaded, as after start-up.
#include <memory>

#include "common/application.h"
#include "dialog_backend.h"
#include "fake_system.h"

namespace qs::test {

struct TestApp {
    TestApp();
    FakeSystem sys;
    Application app;
    // Shows frmMessage: records each dialog and answers it.
    DialogBackend dialogs{app};

    // Types keys into the Command box as a person would.
    void Type(const std::wstring& keys) { app.frmMain.TextMain.TypeText(keys); }
    void Enter() { app.frmMain.TextMain.TypeKey(13); }
    void Backspace() { app.frmMain.TextMain.TypeKey(8); }
    const std::wstring& Text() const { return app.frmMain.TextMain.Text(); }
    // Empties the box as the user would before typing a new Command.
    void ClearBox() { app.frmMain.SetTextMainQuietly(L""); }
    // Adds a Launch List item to the merged lists of a group.
    void AddItem(int group, const std::wstring& name, const std::wstring& path);
    std::wstring LastTarget() const { return sys.launches.empty() ? L"" : sys.launches.back().target; }
};

}  // namespace qs::test
