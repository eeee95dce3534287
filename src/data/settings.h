#pragma once
// The settings of this computer and the list counters, as working variables
// beside the images of the three record files they are saved in.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace qs {

// One value of the Set record's image: a 16-bit integer or a string. An
// image value that was never read or written is empty and equals nothing.
using RecordValue = std::variant<std::int16_t, std::wstring>;

inline constexpr std::int16_t SetRecordVersion = 10;
inline constexpr std::int16_t ComDataVersion = 2;
inline constexpr std::int16_t USBDataVersion = 3;

struct Settings {
    // Images: what each file holds.
    std::array<std::optional<RecordValue>, SetRecordVersion + 1> SetRecord;
    std::array<std::int16_t, ComDataVersion + 1> ComDataRecord{};
    std::array<std::int16_t, USBDataVersion + 1> USBDataRecord{};

    // Working variables of "Set.Morvane": what should be in it.
    std::int16_t OptionWord = 0;
    std::int16_t MainLeft = 0;
    std::int16_t MainTop = 0;
    std::wstring LastFolder;
    std::int16_t HDDFileLast = 0;
    std::int16_t HDDFolderLast = 0;
    std::int16_t HDDProgramLast = 0;
    std::int16_t FontSizeSetting = 0;
    std::int16_t QuickDefaultItem = 0;
    std::int16_t ThemeIndex = 0;

    // Working variables of "COMData.Morvane" and "USBData.Morvane".
    std::int16_t EmailLast = 0;
    std::int16_t WebLast = 0;
    std::int16_t USBFileLast = 0;
    std::int16_t USBFolderLast = 0;
    std::int16_t USBProgramLast = 0;

    // The six bits of OptionWord spread into flags of 1 or 0.
    std::int16_t OptionStartWithWindows = 0;
    std::int16_t OptionShowAddUrlBox = 0;
    std::int16_t OptionStartMinimized = 0;
    std::int16_t OptionAddUrlFontBold = 0;
    std::int16_t OptionMainFontBold = 0;
    std::int16_t OptionAlwaysOnTop = 0;
    // Per option, its bit value when set, else 0: filled from the word at
    // start and by the Preferences pane's check boxes.
    std::array<std::int16_t, 6> OptionBits{};

    // The Preferences pane's edit copies beside the saved values above: the
    // word, the font size and the QuickLauncher's first group as chosen in
    // this run, and the sums that tell whether they differ.
    std::int16_t OptionWordEdit = 0;
    std::int16_t FontSizeEdit = 0;
    std::int16_t QuickDefaultEdit = 0;
    std::int16_t OptionBaseSaved = 0;
    std::int16_t OptionBaseEdit = 0;
    std::int16_t OptionTotalSaved = 0;
    std::int16_t OptionTotalEdit = 0;
};

}  // namespace qs
