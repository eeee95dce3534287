#pragma once
// A test program with the bar on its work area and the QuickLauncher loaded
// over lists filled by the test, with helpers to read its pages.
#include <cstdint>
#include <string>
#include <vector>

#include "bar_app.h"

namespace qs::test {

struct QuickApp : BarApp {
    FrmQuick& quick() { return app.frmQuick; }

    // Adds `count` items to a group, named "Item 0001" onwards so that the
    // sorted list keeps the order they were added in.
    void AddItems(int group, int count);
    static std::wstring ItemName(int number);
    // The path AddItems gives item `number` of `group`.
    static std::wstring ItemPath(int group, int number);

    // Loads the QuickLauncher as start-up does, after the lists.
    void LoadQuick() { quick().Load(); }

    // What the page shows: the tooltips of the visible item buttons, and
    // the captions of the twenty index labels.
    std::vector<std::wstring> ShownItems();
    std::vector<std::wstring> IndexLabels();
};

}  // namespace qs::test
