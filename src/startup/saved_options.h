#pragma once
// Spreads the six bits of the saved options word into six flags of 1 or 0.
#include <cstddef>
#include <cstdint>

namespace qs {

struct Application;
struct Settings;

inline constexpr std::size_t OptionCount = 6;

void AtStartsavedOptions(Application& app, std::int16_t& optionWord);

// The flag of option i, the option of bit i: 0 Start With Windows, 1 the web
// pane at start, 2 minimised at start, 3 the web boxes bold, 4 the Command
// box bold, 5 always on top. An index past 5 is a subscript failure.
std::int16_t& OptionFlag(Settings& settings, std::size_t index);

}  // namespace qs
