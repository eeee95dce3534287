#pragma once
// The Launch List pane. It owns the merged name and path lists of the five
// groups, which everything that reads items reads.
#include <array>
#include <memory>

#include "ui/form.h"
#include "ui/list_box.h"

namespace qs {

struct Application;

class FrmChoose : public ui::Form {
public:
    explicit FrmChoose(Application& app);

    // Index is the group: 0 File, 1 Folder, 2 Program, 3 Email, 4 Web URL.
    // Names are sorted; paths follow their names position by position.
    std::array<std::unique_ptr<ui::ListBox>, 5> ComboListItemName;
    std::array<std::unique_ptr<ui::ListBox>, 5> ComboListItemPath;

private:
    Application& app_;
};

}  // namespace qs
