#pragma once
// What start-up learns about this run and every part reads.
#include <string>

namespace qs {

struct StartState {
    // True from the first statement of Main until the theme exists.
    bool StartingUp = false;
    // The environment's "username".
    std::wstring UserNameEnv;
    // True when the program runs from a removable drive.
    bool OnRemovable = false;
};

}  // namespace qs
