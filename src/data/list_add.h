#pragma once
// Adding and renaming Launch List items: the duplicate checks, the add from
// the Add Item pane and from the bar's web box, and the rename of the Launch
// List pane. They change memory only; the files follow at exit.
#include <cstdint>
#include <string>

#include "ui/list_box.h"

namespace qs {

struct Application;

// The group an item of the Add Item pane lands in: "Program" 2, "File" 0
// (2 for the extension "exe"), "Folder" 1, "Email" 3, "Web URL" 4.
std::int16_t GroupOfBrowseOption(std::int16_t browseOption, const std::wstring& extension);

// "MessagePathAlreadyListed" when `paths` holds `path` exactly; the name at
// that position goes to DuplicateItemName. "" otherwise.
std::wstring ActionConfirmAddPath(Application&, const std::wstring& path, ui::ListBox& paths, ui::ListBox& names);
// "MessageNameAlreadyListed" when `names` holds `name` ignoring case.
std::wstring ActionConfirmAddName(Application&, const std::wstring& name, ui::ListBox& names);
// "MessageFamilyProgram" when `path` is the program file of a family member.
std::wstring ActionConfirmFamily(Application& app, const std::wstring& path);

// Adds an item of the Add Item pane to the merged lists of its group and, for
// File, Folder and Program, to the side its drive type says (1 the flash
// drive, else the computer). `driveType` is 0 for Email and Web URL,
// `extension` is lower-case.
void ActionListAddNew(Application& app, const std::wstring& name, const std::wstring& path, std::int16_t driveType,
                      const std::wstring& extension);
// Adds a Web URL item from the bar's web box.
void ActionListAddWeb(Application&, const std::wstring& name, const std::wstring& url);

// Renames the merged item at `position` of `group`; "MessageNameAlreadyListed"
// when the group holds the new name exactly, "" when done.
std::wstring ActionListRename(Application& app, std::int16_t group, const std::wstring& newName,
                              std::int16_t position);

}  // namespace qs
