#include "windows/choose_code_pane.h"

#include "command/tables.h"
#include "common/application.h"
#include "windows/frm_choose.h"

namespace qs {

namespace {

constexpr const wchar_t* NoCodeCaptions[] = {
    L"A CommandCode and a Launch Name makes a Command. CommandCode has 2 characters. In most cases 1st char "
    L"identifies the type of the item (File, Program etc.) and 2nd char identifies the type of the Launch Name "
    L"(short name, full path etc.). Launch Name identifies actual item of the Command.",
    L"1st Character Of Code :",
    L"What It Identifies Or Do",
    L"2nd Character Of Code :",
    L"What It Identifies Or Do",
    L"Example:",
    L"Predefined Names:",
    L"Additional Task:",
    L"Control Panel :",
    L"Special Folders :",
    L"Email :",
    L"Type Command Code And Launch Name in the Main Textbox",
    L"No space in between Command Code and Launch Name",
    L"Press \"Enter\" key on your Keyboard",
    L"Oh, Yeah !!",
};
constexpr std::int16_t NoCodeCount = sizeof(NoCodeCaptions) / sizeof(NoCodeCaptions[0]);
constexpr const wchar_t* NoCodeBCaptions[] = {L"How To Run A Command?", L"Then?", L"That's it ?!!"};
constexpr const wchar_t* CodeCaptions[] = {L"a.", L"c.", L"d.", L"e."};

constexpr std::int32_t RowHeight = 255;
constexpr std::int32_t ListHeight = 315;
constexpr std::int32_t FullWidth = 4680;
constexpr std::int32_t CaptionWidth = 2040;
// Two lines of the pane's font with the box's border.
constexpr std::int32_t ExplanationHeight = 450;

}  // namespace

CodeCommandPane::CodeCommandPane(Application& app, FrmChoose& form)
    : LabelCaption(form, L"LabelCaption", L"CommandCode And Predefined Launch Name:"),
      LabelNoCode(form, L"LabelNoCode", NoCodeCount),
      LabelNoCodeB(form, L"LabelNoCodeB", 3),
      ComboCode1st(form, L"ComboCode1st", false),
      TextCode1st(form, L"TextCode1st", true),
      ComboCode2nd(form, L"ComboCode2nd", false),
      TextCode2nd(form, L"TextCode2nd", true),
      TextCommand(form, L"TextCommand"),
      LabelCommand(form, L"LabelCommand"),
      LabelCode(form, L"LabelCode", 4),
      ComboNameATask(form, L"ComboNameATask", false),
      ComboNameCP(form, L"ComboNameCP", false),
      ComboNameDir(form, L"ComboNameDir", false),
      ComboNameEmail(form, L"ComboNameEmail", false),
      app_(app),
      form_(form) {
    for (std::int16_t i = 0; i < NoCodeCount; ++i) LabelNoCode(i).SetCaption(NoCodeCaptions[i]);
    for (std::int16_t i = 0; i < LabelNoCodeB.Count(); ++i) LabelNoCodeB(i).SetCaption(NoCodeBCaptions[i]);
    for (std::int16_t i = 0; i < LabelCode.Count(); ++i) LabelCode(i).SetCaption(CodeCaptions[i]);
    TextCommand.SetText(L"Command = Command Code + Launch Name");
    // The longer explanations wrap onto a second line of their room.
    for (ui::TextBox* box : {&TextCode1st, &TextCode2nd}) box->SetVerticalScrollBar(false);
    WireEvents();
}

void CodeCommandPane::SetUp() {
    Layout();
    SetTabOrder();
    ChooseFillCombos();
}

void CodeCommandPane::Layout() {
    ui::Frame& pane = form_.PictureCode;
    // The heading runs on one line up to the close button, and the
    // introduction has room for a sixth line where a larger DPI wraps it so.
    pane.Place(LabelCaption, 240, 150, 4410, 315);
    LabelCaption.SetFont(9, true);
    pane.Place(LabelNoCode(0), 240, 480, FullWidth, 1140);

    // Each character list and the box that explains it, beside their
    // captions. An explanation takes up to two lines; the example, whose
    // caption is short, takes the width of the pane.
    struct Row {
        ui::Label& caption;
        ui::Control& field;
        std::int32_t top;
        std::int32_t captionWidth;
        std::int32_t height;
    };
    const Row rows[] = {
        {LabelNoCode(1), ComboCode1st, 1650, CaptionWidth, ListHeight},
        {LabelNoCode(2), TextCode1st, 2010, CaptionWidth, ExplanationHeight},
        {LabelNoCode(3), ComboCode2nd, 2520, CaptionWidth, ListHeight},
        {LabelNoCode(4), TextCode2nd, 2880, CaptionWidth, ExplanationHeight},
        {LabelNoCode(5), TextCommand, 3390, 900, ListHeight},
    };
    for (const Row& row : rows) {
        const std::int32_t fieldLeft = 240 + row.captionWidth + 60;
        pane.Place(row.caption, 240, row.top + 30, row.captionWidth, RowHeight);
        pane.Place(row.field, fieldLeft, row.top, 240 + FullWidth - fieldLeft, row.height);
        row.field.SetAccessibleName(row.caption.Caption());
    }
    // The lists say what to do until a character is chosen.
    ComboCode1st.SetToolTipText(L"Select Char 1");
    ComboCode2nd.SetToolTipText(L"Select Char 2");
    // The longest explanation takes eight lines, and at 150 % nearly all
    // of this room.
    pane.Place(LabelCommand, 240, 3765, FullWidth, 1560);

    pane.Place(LabelNoCode(6), 240, 5340, FullWidth, RowHeight);
    ui::ComboBox* names[] = {&ComboNameATask, &ComboNameCP, &ComboNameDir, &ComboNameEmail};
    for (std::int16_t i = 0; i < 4; ++i) {
        const std::int32_t top = 5640 + i * 330;
        pane.Place(LabelNoCode(7 + i), 240, top + 30, 1560, RowHeight);
        pane.Place(LabelCode(i), 1860, top + 30, 420, RowHeight);
        pane.Place(*names[i], 2340, top, 2580, ListHeight);
        names[i]->SetAccessibleName(LabelNoCode(7 + i).Caption());
    }

    // How to run a Command, in three questions and answers.
    pane.Place(LabelNoCodeB(0), 240, 7020, FullWidth, RowHeight);
    pane.Place(LabelNoCode(11), 240, 7275, FullWidth, RowHeight);
    pane.Place(LabelNoCode(12), 240, 7530, FullWidth, RowHeight);
    pane.Place(LabelNoCodeB(1), 240, 7815, 900, RowHeight);
    pane.Place(LabelNoCode(13), 1200, 7815, 3720, RowHeight);
    pane.Place(LabelNoCodeB(2), 240, 8100, 1500, RowHeight);
    pane.Place(LabelNoCode(14), 1800, 8100, 3120, RowHeight);
    for (const auto& label : LabelNoCodeB) label->SetFont(0, true);
}

void CodeCommandPane::SetTabOrder() {
    std::int16_t next = 1;
    for (ui::Control* c : std::initializer_list<ui::Control*>{&ComboCode1st, &TextCode1st, &ComboCode2nd,
                                                              &TextCode2nd, &TextCommand, &ComboNameATask,
                                                              &ComboNameCP, &ComboNameDir, &ComboNameEmail}) {
        c->SetTabIndex(next++);
    }
}

void CodeCommandPane::WireEvents() {
    ComboCode1st.Click = [this] { ComboCode1stClick(); };
    ComboCode2nd.Click = [this] { ComboCode2ndClick(); };
    for (ui::ComboBox* list :
         {&ComboCode1st, &ComboCode2nd, &ComboNameATask, &ComboNameCP, &ComboNameDir, &ComboNameEmail}) {
        list->KeyPress = [this](std::int16_t& key) { ReadOnlyKeyPress(key); };
    }
    for (ui::TextBox* box : {&TextCode1st, &TextCode2nd, &TextCommand}) {
        box->KeyPress = [this](std::int16_t& key) { ReadOnlyKeyPress(key); };
        // Keys that never reach KeyPress, such as Delete, can't edit either.
        box->SetLocked(true);
    }
}

void CodeCommandPane::ReadOnlyKeyPress(std::int16_t& key) {
    const bool escape = key == 27;
    key = 0;
    if (escape) form_.PictureHideClick();
}

void CodeCommandPane::ChooseFillCombos() {
    const NameTables& t = app_.tables;
    for (std::size_t i = 0; i < CodeFirstCharacters.size(); ++i) {
        FirstChars[i] = CodeFirstCharacters[i].character;
        FirstExplanations[i] = CodeFirstCharacters[i].explanation;
    }
    for (std::size_t i = 0; i < CodeSecondCharacters.size(); ++i) {
        SecondChars[i] = CodeSecondCharacters[i].character;
        SecondExplanations[i] = CodeSecondCharacters[i].explanation;
    }
    // One pass fills every list as far as its table goes. The fifth
    // additional task is left out of its list on purpose, though it works.
    for (std::size_t i = 0; i <= 15; ++i) {
        ComboNameCP.AddItem(t.ControlPanelNames.at(i));
        if (i < 1) ComboNameEmail.AddItem(t.FeedbackMailAddress.at(i));
        if (i < 4) ComboNameATask.AddItem(t.ATaskNames.at(i));
        if (i < 6) ComboCode2nd.AddItem(SecondChars.at(i));
        if (i < 9) ComboNameDir.AddItem(t.SpecialFolderNames.at(i));
        if (i < 14) ComboCode1st.AddItem(FirstChars.at(i));
    }
    ComboNameCP.SetListIndex(0);
    ComboNameDir.SetListIndex(0);
    ComboNameATask.SetListIndex(0);
    ComboNameEmail.SetListIndex(0);
    LabelCommand.SetCaption(
        L"Select 1st and 2nd char. of Command Code in the above Combo boxes, view an example Command in the "
        L"Example Textbox above and an explanation of the Command here.\r\n\r\nTo start with, please select \"a\" "
        L"as first Char and a \".\" (dot) as second Char of Code.");
}

}  // namespace qs
