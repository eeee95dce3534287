#include "startup/saved_options.h"

#include <array>

#include "common/application.h"
#include "common/failure.h"

namespace qs {

std::int16_t& OptionFlag(Settings& settings, std::size_t index) {
    static constexpr std::array<std::int16_t Settings::*, OptionCount> flags = {
        &Settings::OptionStartWithWindows, &Settings::OptionShowAddUrlBox, &Settings::OptionStartMinimized,
        &Settings::OptionAddUrlFontBold,   &Settings::OptionMainFontBold,  &Settings::OptionAlwaysOnTop,
    };
    if (index >= flags.size()) throw SubscriptOutOfRange();
    return settings.*flags[index];
}

void AtStartsavedOptions(Application& app, std::int16_t& optionWord) {
    Settings& s = app.settings;
    std::array<std::int16_t, OptionCount>& bits = s.OptionBits;
    for (std::size_t i = 0; i < bits.size(); ++i) {
        // Bit i is set when the word modulo 2^(i+1) exceeds 2^i - 1; the
        // remainder takes the word's sign, so a negative word sets no bit.
        const int power = 1 << i;
        bits[i] = optionWord % (power * 2) > power - 1 ? static_cast<std::int16_t>(power) : std::int16_t{0};
    }
    for (std::size_t i = 0; i < bits.size(); ++i) OptionFlag(s, i) = bits[i] == 0 ? std::int16_t{0} : std::int16_t{1};
}

}  // namespace qs
