#pragma once
// The user's names, entered once for the maker's whole family of programs.
#include <string>

namespace qs {

struct UserNames {
    std::wstring UserFirstName;
    std::wstring UserLastName;
    std::wstring UserNickName;
};

}  // namespace qs
