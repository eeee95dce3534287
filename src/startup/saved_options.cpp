#include "startup/saved_options.h"

#include <array>

#include "common/application.h"

namespace qs {

void AtStartsavedOptions(Application& app, std::int16_t& optionWord) {
    Settings& s = app.settings;
    const std::array<std::int16_t Settings::*, 6> flags = {
        &Settings::OptionStartWithWindows, &Settings::OptionShowAddUrlBox, &Settings::OptionStartMinimized,
        &Settings::OptionAddUrlFontBold,   &Settings::OptionMainFontBold,  &Settings::OptionAlwaysOnTop,
    };
    std::array<std::int16_t, 6> bits{};
    for (std::size_t i = 0; i < bits.size(); ++i) {
        // Bit i is set when the word modulo 2^(i+1) exceeds 2^i - 1; the
        // remainder takes the word's sign, so a negative word sets no bit.
        const int power = 1 << i;
        if (optionWord % (power * 2) > power - 1) bits[i] = static_cast<std::int16_t>(power);
    }
    for (std::size_t i = 0; i < bits.size(); ++i) s.*flags[i] = bits[i] == 0 ? std::int16_t{0} : std::int16_t{1};
}

}  // namespace qs
