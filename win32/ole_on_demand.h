#pragma once
// COM and OLE on the window thread, started by their first user (a drop
// target, a launch through the shell) instead of at the program's start:
// their libraries then load after the bar has shown.
namespace qs::win {

class OleOnDemand {
public:
    OleOnDemand() = default;
    OleOnDemand(const OleOnDemand&) = delete;
    OleOnDemand& operator=(const OleOnDemand&) = delete;
    // Ends OLE on the thread if it was started.
    ~OleOnDemand();
    // Starts OLE on the calling thread unless it runs already; false when it
    // cannot run there.
    static bool Start();
};

}  // namespace qs::win
