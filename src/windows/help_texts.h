#pragma once
// The text Help shows for each of its topics but the last, "About".
#include <cstdint>
#include <string>

namespace qs {

// The text of topic 0 to 11, its lines joined by CRLF. Any other index is
// a subscript failure.
std::wstring HelpTopicText(std::int16_t topic);

}  // namespace qs
