#pragma once
// The bar: the Command box TextMain and the hidden button through which other
// windows ask the bar for a click.
#include <cstdint>
#include <string>

#include "ui/command_button.h"
#include "ui/form.h"
#include "ui/text_box.h"
#include "ui/timer.h"

namespace qs {

struct Application;

inline constexpr std::int32_t MainWidthZero = 2652;
inline constexpr std::int32_t MainWidthCommand = 6360;
inline constexpr std::int32_t MainWidthWeb = 12324;
inline constexpr std::int32_t MainHeight = 348;

class FrmMain : public ui::Form {
public:
    explicit FrmMain(Application& app);

    ui::TextBox TextMain;
    ui::CommandButton CommandMainClick;
    // Keeps the bar topmost while the option "  Always On Top" is set.
    ui::Timer TimerOnTop;

    // Set by a Backspace keystroke; the next Change consumes it.
    bool BackspaceTyped = false;
    // Width to come back to after a collapse.
    std::int32_t LastWideWidth = MainWidthCommand;
    // TimerOnTop ticks counted while TextMain holds text.
    std::int16_t IdleTicks = 0;

    // Event handlers.
    void FormLoad();
    void FormUnload();
    void TimerOnTopTimer();
    void TextMainKeyPress(std::int16_t& key);
    void TextMainChange();
    void TextMainDblClick();
    void CommandMainClickClick();
    void PictureMenuClick(std::int16_t& index);
    void PictureShowQuickClick();

    void RunCommand(std::wstring& code, std::wstring& launchName);

    // Writes TextMain from code under the TextMainBusy guard.
    void SetTextMainQuietly(const std::wstring& text);

    // Applies MainWidth to the form and recomputes MainWidthPixels.
    void ApplyMainWidth();

private:
    void TextMainChangeSearch(const std::wstring& text);
    void ListSearch(std::wstring& rawCode, std::wstring& typed, std::int16_t group);

    Application& app_;
};

}  // namespace qs
