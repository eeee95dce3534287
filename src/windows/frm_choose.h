#pragma once
// The Launch List pane. It owns the merged name and path lists of the five
// groups, which everything that reads items reads.
#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/form.h"

namespace qs {

struct Application;

class FrmChoose : public ui::Form {
public:
    explicit FrmChoose(Application& app);

    // Index is the group: 0 File, 1 Folder, 2 Program, 3 Email, 4 Web URL.
    // Names are sorted; paths follow their names position by position.
    ui::ControlArray<ui::ComboBox> ComboListItemName;
    ui::ControlArray<ui::ComboBox> ComboListItemPath;

private:
    Application& app_;
};

}  // namespace qs
