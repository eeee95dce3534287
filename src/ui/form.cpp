#include "ui/form.h"

#include "ui/backend.h"

namespace qs::ui {

Form::Form(std::wstring name, FormStyle style) : name_(std::move(name)), style_(style) {}

void Form::SetCaption(std::wstring caption) {
    caption_ = std::move(caption);
    Notify(Property::Text);
}

void Form::SetBackColor(Color color) {
    if (backColor_ == color) return;
    backColor_ = color;
    Notify(Property::Colors);
}

void Form::SetPicture(PictureRef picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    Notify(Property::Picture);
}

void Form::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Notify(Property::Geometry);
}

void Form::SetTopMost(bool topMost) {
    topMost_ = topMost;
    Notify(Property::TopMost);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    const std::uint32_t load = ++loads_;
    // The Load event sets the form up before its window is made, so the
    // window is made once as the event left the form instead of following
    // each of its changes. A Load event that unloaded the form, or unloaded
    // and loaded it again, has already settled its window.
    if (LoadEvent) LoadEvent();
    if (loaded_ && loads_ == load && backend_ != nullptr) backend_->FormLoaded(*this);
}

void Form::Show() {
    Load();
    if (visible_) return;
    visible_ = true;
    if (backend_ != nullptr) backend_->FormShowing(*this);
    Notify(Property::Visible);
}

void Form::ShowModal() {
    Load();
    modal_ = true;
    visible_ = true;
    if (backend_ != nullptr) backend_->FormShowing(*this);
    Notify(Property::Visible);
    if (backend_ != nullptr) backend_->RunModal(*this);
    modal_ = false;
}

void Form::Hide() {
    if (!visible_) return;
    visible_ = false;
    Notify(Property::Visible);
}

void Form::Unload() {
    if (!loaded_) return;
    if (UnloadEvent) UnloadEvent();
    visible_ = false;
    Notify(Property::Visible);
    loaded_ = false;
    if (backend_ != nullptr) backend_->FormUnloaded(*this);
}

void Form::UserMoved(std::int32_t left, std::int32_t top) {
    left_ = left;
    top_ = top;
}

}  // namespace qs::ui
