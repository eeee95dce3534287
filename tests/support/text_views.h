#pragma once
// Views of a list of texts, as the system's bulk existence tests take them.
#include <string>
#include <string_view>
#include <vector>

namespace qs::test {

inline std::vector<std::wstring_view> Views(const std::vector<std::wstring>& texts) {
    return {texts.begin(), texts.end()};
}

}  // namespace qs::test
