#pragma once
// The Add Item and Open pane as a person uses it: opened from the bar,
// walked through its folder and file boxes, filled and confirmed.
#include <string>

#include "data_setup.h"
#include "windows/frm_browse.h"

namespace qs::test {

// Loads the pane as start-up does.
void LoadBrowse(TestApp& t);
// A fixed-disk run with a program and a document in C:\Apps, and the pane
// loaded as start-up does.
void LoadBrowseOverApps(TestApp& t);
// Opens the pane in mode 0 (Add Item) or 1 (Open), as the bar's
// PictureMenu(mode) does.
void OpenBrowse(TestApp& t, std::int16_t mode);
// Walks the folder box to `folder` and clicks `file` in the file box.
void ChooseFile(TestApp& t, const std::wstring& folder, const std::wstring& file);
// Types a Launch Name and presses Enter in the name box.
void NameAndEnter(TestApp& t, const std::wstring& name);
// The keys of the dialogs shown so far, in order.
std::vector<std::wstring> ShownKeys(TestApp& t);

}  // namespace qs::test
