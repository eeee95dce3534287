#pragma once
// Spreads the six bits of the saved options word into six flags of 1 or 0.
#include <cstdint>

namespace qs {

struct Application;

void AtStartsavedOptions(Application& app, std::int16_t& optionWord);

}  // namespace qs
