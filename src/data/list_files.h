#pragma once
// What the list routines share: the file of each group on each side, the test
// a target must pass at load, the drive-independent form of flash-side
// targets, and the program's 16-bit loop index.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/failure.h"

namespace qs {

struct Application;

// The computer-side file of groups 0 to 4; SubscriptOutOfRange otherwise.
const std::wstring& ComputerSideFile(const Application& app, std::int16_t group);
// The flash-side file of groups 0 to 2; SubscriptOutOfRange otherwise.
const std::wstring& FlashSideFile(const Application& app, std::int16_t group);

// For each target, in order: FolderExists for Folder, FileExists for File and
// Program, asked of the system in one bulk call.
std::vector<bool> TargetsPass(Application& app, std::int16_t group, const std::vector<std::wstring_view>& targets);

// E:\a.exe becomes #:\a.exe when E is the program's drive letter, exactly.
std::wstring ToStoredFlashTarget(const Application& app, const std::wstring& target);
// #:\a.exe becomes E:\a.exe on the program's drive E.
std::wstring FromStoredFlashTarget(const Application& app, std::wstring_view stored);

// Steps a 16-bit loop index; stepping past 32,767 overflows.
inline std::int16_t NextIndex(std::int16_t i) {
    if (i == INT16_MAX) throw Overflow();
    return static_cast<std::int16_t>(i + 1);
}

}  // namespace qs
