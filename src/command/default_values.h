#pragma once
namespace qs {

struct Application;

// Fills the tables of predefined names and the start values of the bar.
void AtStartDefaultValue(Application& app);

}  // namespace qs
