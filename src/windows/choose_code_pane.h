#pragma once
// The Code And Command pane of frmChoose: it teaches the Command language
// by example. The first and second characters of a Command Code are chosen
// from two lists, each explained, and together they show an example
// Command with what it does; below, the predefined Launch Names. Nothing
// here changes data or runs anything: every list and box is read-only. Its
// controls live on frmChoose, in PictureCode. Handlers:
// choose_code_example.cpp (the two lists and the examples).
#include <array>
#include <cstdint>
#include <string>

#include "ui/combo_box.h"
#include "ui/control_array.h"
#include "ui/label.h"
#include "ui/text_box.h"

namespace qs {

struct Application;
class FrmChoose;

// What the pane shows for a two-character code: an example Command and
// its explanation, both "" for a code the pane leaves blank.
struct CodeExample {
    std::wstring command;
    std::wstring explanation;
};
CodeExample CodeExampleOf(const std::wstring& code);

class CodeCommandPane {
public:
    CodeCommandPane(Application& app, FrmChoose& form);

    ui::Label LabelCaption;
    // The fixed captions, and the bold questions and answers at the foot.
    ui::ControlArray<ui::Label> LabelNoCode;
    ui::ControlArray<ui::Label> LabelNoCodeB;
    ui::ComboBox ComboCode1st;
    ui::TextBox TextCode1st;
    ui::ComboBox ComboCode2nd;
    ui::TextBox TextCode2nd;
    ui::TextBox TextCommand;
    ui::Label LabelCommand;
    // "a.", "c.", "d.", "e." before the predefined names of each code.
    ui::ControlArray<ui::Label> LabelCode;
    ui::ComboBox ComboNameATask;
    ui::ComboBox ComboNameCP;
    ui::ComboBox ComboNameDir;
    ui::ComboBox ComboNameEmail;

    // Lays the pane out inside PictureCode and fills its lists; part of
    // frmChoose's set-up.
    void SetUp();

    // Event handlers.
    void ComboCode1stClick();
    void ComboCode2ndClick();
    // Every list and box of the pane: no key gets through; Esc closes.
    void ReadOnlyKeyPress(std::int16_t& key);

private:
    void Layout();
    void SetTabOrder();
    void WireEvents();
    // Fills the two character lists and the four lists of names, and sets
    // the start text.
    void ChooseFillCombos();
    void ShowCodeExample(const std::wstring& code);

    Application& app_;
    FrmChoose& form_;
    // The characters of the two lists and their explanations, by position.
    std::array<std::wstring, 14> FirstChars;
    std::array<std::wstring, 14> FirstExplanations;
    std::array<std::wstring, 6> SecondChars;
    std::array<std::wstring, 6> SecondExplanations;
};

}  // namespace qs
