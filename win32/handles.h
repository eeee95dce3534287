#pragma once
// Ownership of the system's handles: each kind of handle is closed by its own
// call when its owner goes out of scope, on every path. The GDI objects, the
// device contexts and the windows are counted while held (object_counts.h).
#include <windows.h>

#include <utility>

#include "object_counts.h"

namespace qs::win {

// A handle with one way to close it and one value that means "none". Traits
// that name a CountedKind have their handles counted while a holder has them.
template <typename Traits>
class UniqueHandle {
public:
    using Handle = typename Traits::Handle;

    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) : handle_(handle) { Taken(handle_); }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(std::exchange(other.handle_, Traits::None())) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other) {
            Reset();
            handle_ = std::exchange(other.handle_, Traits::None());
        }
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != Traits::None(); }

    // Lets go of the handle without closing it: whoever takes it (or, for a
    // window, the destruction of its parent) answers for it from now on.
    Handle Release() {
        Given(handle_);
        return std::exchange(handle_, Traits::None());
    }
    void Reset(Handle handle = Traits::None()) {
        Taken(handle);
        const Handle old = std::exchange(handle_, handle);
        if (old != Traits::None()) {
            Given(old);
            Traits::Close(old);
        }
    }

private:
    static void Taken(Handle handle) {
        if constexpr (requires { Traits::kCounted; }) {
            if (handle != Traits::None()) CountMade(Traits::kCounted);
        }
    }
    static void Given(Handle handle) {
        if constexpr (requires { Traits::kCounted; }) {
            if (handle != Traits::None()) CountGone(Traits::kCounted);
        }
    }

    Handle handle_ = Traits::None();
};

struct KernelHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::CloseHandle(h); }
};

// CreateFile reports failure with INVALID_HANDLE_VALUE, not null.
struct FileHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; }
    static void Close(Handle h) { ::CloseHandle(h); }
};

// FindFirstFile's search handles are closed by FindClose.
struct FindHandleTraits {
    using Handle = HANDLE;
    static Handle None() { return INVALID_HANDLE_VALUE; }
    static void Close(Handle h) { ::FindClose(h); }
};

struct RegKeyTraits {
    using Handle = HKEY;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::RegCloseKey(h); }
};

template <typename GdiObject, CountedKind kind>
struct GdiObjectTraits {
    using Handle = GdiObject;
    static constexpr CountedKind kCounted = kind;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::DeleteObject(h); }
};

struct WindowTraits {
    using Handle = HWND;
    static constexpr CountedKind kCounted = CountedKind::Window;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::DestroyWindow(h); }
};

using KernelHandle = UniqueHandle<KernelHandleTraits>;
using FileHandle = UniqueHandle<FileHandleTraits>;
using FindHandle = UniqueHandle<FindHandleTraits>;
using RegKey = UniqueHandle<RegKeyTraits>;
using FontHandle = UniqueHandle<GdiObjectTraits<HFONT, CountedKind::Font>>;
using BrushHandle = UniqueHandle<GdiObjectTraits<HBRUSH, CountedKind::Brush>>;
using BitmapHandle = UniqueHandle<GdiObjectTraits<HBITMAP, CountedKind::Bitmap>>;
// A window, destroyed by its holder unless released to its parent or owner,
// whose destruction takes it along.
using WindowHandle = UniqueHandle<WindowTraits>;

// The device context of a window, released at the end of the scope.
class WindowDc {
public:
    explicit WindowDc(HWND window) : window_(window), dc_(::GetDC(window)) {
        if (dc_ != nullptr) CountMade(CountedKind::Dc);
    }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() {
        if (dc_ == nullptr) return;
        ::ReleaseDC(window_, dc_);
        CountGone(CountedKind::Dc);
    }
    HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

// A memory device context compatible with another, deleted at the end of the scope.
class MemoryDc {
public:
    explicit MemoryDc(HDC like) : dc_(::CreateCompatibleDC(like)) {
        if (dc_ != nullptr) CountMade(CountedKind::Dc);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc() {
        if (dc_ == nullptr) return;
        ::DeleteDC(dc_);
        CountGone(CountedKind::Dc);
    }
    HDC Get() const { return dc_; }

private:
    HDC dc_;
};

// BeginPaint and EndPaint around one WM_PAINT.
class PaintScope {
public:
    explicit PaintScope(HWND window) : window_(window) {
        dc_ = ::BeginPaint(window, &paint_);
        if (dc_ != nullptr) CountMade(CountedKind::Dc);
    }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    ~PaintScope() {
        ::EndPaint(window_, &paint_);
        if (dc_ != nullptr) CountGone(CountedKind::Dc);
    }
    HDC Get() const { return dc_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC dc_ = nullptr;
};

// An object selected into a DC for the scope; the previous one comes back.
class SelectScope {
public:
    SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), old_(::SelectObject(dc, object)) {}
    SelectScope(const SelectScope&) = delete;
    SelectScope& operator=(const SelectScope&) = delete;
    ~SelectScope() {
        if (old_ != nullptr && old_ != HGDI_ERROR) ::SelectObject(dc_, old_);
    }

private:
    HDC dc_;
    HGDIOBJ old_;
};

}  // namespace qs::win
