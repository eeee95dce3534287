#pragma once
// The Launch List pane as a person uses it: the program started on a fixed
// disk or a flash drive, frmChoose loaded as start-up loads it, items put
// into the lists, and the pane opened from the bar.
#include <cstdint>
#include <string>

#include "data/launch_list.h"
#include "sample_items.h"
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
        for (const SampleItem& item : TwoItemsInEveryGroup) Add(item.group, item.name, item.target);
    }
    void OpenPane() { app.frmMain.PictureMenu(2).Press(); }
    void ShowGroup(std::int16_t group) { pane().ImageShowList(group).Press(); }
};

}  // namespace qs::test
