#pragma once
namespace qs {

struct Application;

// The whole start-up: decides whether this copy may run, where its data
// lives, loads the data and brings the bar up. Returns with the bar shown;
// the program then lives in the event loop.
void Main(Application& app);

}  // namespace qs
