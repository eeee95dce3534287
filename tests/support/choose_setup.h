#pragma once
// The Launch List pane as a person uses it: the program started on a fixed
// disk or a flash drive, frmChoose loaded as start-up loads it, items put
// into the lists, and the pane opened from the bar.
#include <cstdint>
#include <string>

#include "data/launch_list.h"
#include "data_setup.h"
#include "test_app.h"

namespace qs::test {

struct ChooseApp : TestApp {
    explicit ChooseApp(wchar_t flashLetter = 0) {
        app.place.WorkAreaLeft = 0;
        app.place.WorkAreaTop = 0;
        app.place.WorkAreaRight = 1920;
        app.place.WorkAreaBottom = 1040;
        if (flashLetter != 0) {
            SetUpFlashRun(*this, flashLetter);
        } else {
            SetUpFixedDiskRun(*this);
        }
        app.frmChoose.Load();
    }
    FrmChoose& choose() { return app.frmChoose; }
    LaunchListPane& pane() { return app.frmChoose.List; }
    // Adds an item to the merged lists and, for File, Folder and Program,
    // to the side its path belongs to.
    void Add(std::int16_t group, const std::wstring& name, const std::wstring& path) {
        AddItemInStep(MergedNames(*this, group), MergedPaths(*this, group), name, path);
        if (group >= 3) return;
        if (IsFlashSideItem(app, group, path)) {
            AddItemInStep(FlashNames(*this, group), FlashPaths(*this, group), name, path);
        } else {
            AddItemInStep(ComputerNames(*this, group), ComputerPaths(*this, group), name, path);
        }
    }
    // Two items in every group.
    void FillAllGroups() {
        Add(0, L"notes", L"C:\\Docs\\notes.txt");
        Add(0, L"plan", L"C:\\Docs\\plan.doc");
        Add(1, L"docs", L"C:\\Docs");
        Add(1, L"music", L"C:\\Music");
        Add(2, L"editor", L"C:\\Apps\\editor.exe");
        Add(2, L"player", L"C:\\Apps\\player.exe");
        Add(3, L"anna", L"anna@example.com");
        Add(3, L"ben", L"ben@example.com");
        Add(4, L"news", L"http://news.example/");
        Add(4, L"search", L"http://search.example/");
    }
    void OpenPane() { app.frmMain.PictureMenu(2).Press(); }
    void ShowGroup(std::int16_t group) { pane().ImageShowList(group).Press(); }
};

}  // namespace qs::test
