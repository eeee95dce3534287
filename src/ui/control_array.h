#pragma once
// A control array: like controls of one form under one name, "PictureMenu(0)"
// to "PictureMenu(4)", whose events reach one handler with the index.
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "common/failure.h"

namespace qs::ui {

class Form;

template <class T>
class ControlArray {
public:
    template <class... Args>
    ControlArray(Form& owner, const std::wstring& name, std::int16_t count, Args&&... args) {
        items_.reserve(static_cast<std::size_t>(count));
        for (std::int16_t i = 0; i < count; ++i) {
            items_.push_back(std::make_unique<T>(owner, name + L"(" + std::to_wstring(i) + L")", args...));
        }
    }

    std::int16_t Count() const { return static_cast<std::int16_t>(items_.size()); }

    // Throws SubscriptOutOfRange outside 0..Count()-1, as an array does.
    T& operator()(std::int32_t index) const {
        if (index < 0 || index >= static_cast<std::int32_t>(items_.size())) throw SubscriptOutOfRange();
        return *items_[static_cast<std::size_t>(index)];
    }

    // Routes one event of every element to `handler`, which takes the
    // element's index before the event's own arguments:
    //   PictureMenu.OnEach(&PictureBox::Click, [this](std::int16_t i) { ... });
    template <class Event, class Handler>
    void OnEach(Event T::*event, Handler handler) {
        for (std::int16_t i = 0; i < Count(); ++i) {
            (*items_[static_cast<std::size_t>(i)]).*event = [handler, i](auto&&... args) {
                handler(i, std::forward<decltype(args)>(args)...);
            };
        }
    }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace qs::ui
