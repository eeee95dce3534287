#pragma once
// The one dialog through which the program speaks: a heading, a scrolling
// read-only body, three name boxes for the name prompt, a do-not-show box,
// and two picture buttons with their labels.
#include <cstdint>

#include "ui/check_box.h"
#include "ui/control_array.h"
#include "ui/form.h"
#include "ui/label.h"
#include "ui/picture_box.h"
#include "ui/text_box.h"

namespace qs {

struct Application;

inline constexpr std::int32_t MessageFormWidth = 5400;
inline constexpr std::int32_t MessageFormHeight = 8652;

// The fixed pictures of the reply buttons before the theme exists: the
// button, its blank and its pressed look, straight from the holder.
inline constexpr ui::PictureRef StartUpButton{ui::PictureSlot::ImageMU, 2};
inline constexpr ui::PictureRef StartUpBlank{ui::PictureSlot::ImageMZ, 0};
inline constexpr ui::PictureRef StartUpPressed{ui::PictureSlot::ImageMD, 1};

class FrmMessage : public ui::Form {
public:
    explicit FrmMessage(Application& app);

    ui::Label LabelMsgFormCaption;
    ui::Label LabelHead;
    ui::TextBox TextMessage;
    ui::CheckBox CheckDoNotShow;
    ui::PictureBox ImageOK;
    ui::Label LabelOK;
    ui::PictureBox ImageCancel;
    ui::Label LabelCancel;
    // Index 0 first name, 1 last name, 2 nick name.
    ui::ControlArray<ui::Label> LabelName;
    ui::ControlArray<ui::TextBox> TextName;

    // Event handlers.
    void FormLoad();
    void TextMessageKeyPress(std::int16_t& key);
    void TextNameKeyPress(std::int16_t& key);
    void TextNameChange();
    void ImageButtonMouseDown(ui::PictureBox& image);
    void ImageButtonMouseUp(ui::PictureBox& image);

    // The picture of a reply button that is shown or hidden, before the theme
    // exists (start-up) or from the current theme.
    ui::PictureRef ReplyButtonPicture(bool visible) const;

private:
    // Puts every control back as the window is designed, as a fresh load of
    // the window finds it.
    void RestoreDesign();

    Application& app_;
    bool restoringDesign_ = false;
};

}  // namespace qs
