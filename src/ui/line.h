#pragma once
// A straight rule across a panel, drawn in its border colour: a thin area
// without a border of its own, filled with that colour.
#include <string>

#include "ui/frame.h"

namespace qs::ui {

class Line : public Frame {
public:
    Line(Form& owner, std::wstring name) : Frame(owner, std::move(name), L"", false) {}

    Color BorderColor() const { return BackColor(); }
    void SetBorderColor(Color color) { SetBackColor(color); }
};

}  // namespace qs::ui
