#pragma once
// Ownership of the system's handles: each kind of handle is closed by its own
// call when its owner goes out of scope, on every path.
#include <windows.h>

#include <utility>

namespace qs::win {

// A handle with one way to close it and one value that means "none".
template <typename Traits>
class UniqueHandle {
public:
    using Handle = typename Traits::Handle;

    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) : handle_(handle) {}
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        if (this != &other) Reset(other.Release());
        return *this;
    }
    ~UniqueHandle() { Reset(); }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != Traits::None(); }

    Handle Release() { return std::exchange(handle_, Traits::None()); }
    void Reset(Handle handle = Traits::None()) {
        const Handle old = std::exchange(handle_, handle);
        if (old != Traits::None()) Traits::Close(old);
    }

private:
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

// FindFirstFile's search handle, closed by FindClose.
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

template <typename GdiObject>
struct GdiObjectTraits {
    using Handle = GdiObject;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::DeleteObject(h); }
};

struct WindowTraits {
    using Handle = HWND;
    static Handle None() { return nullptr; }
    static void Close(Handle h) { ::DestroyWindow(h); }
};

using KernelHandle = UniqueHandle<KernelHandleTraits>;
using FileHandle = UniqueHandle<FileHandleTraits>;
using FindHandle = UniqueHandle<FindHandleTraits>;
using RegKey = UniqueHandle<RegKeyTraits>;
using FontHandle = UniqueHandle<GdiObjectTraits<HFONT>>;
using BrushHandle = UniqueHandle<GdiObjectTraits<HBRUSH>>;
using BitmapHandle = UniqueHandle<GdiObjectTraits<HBITMAP>>;
using WindowHandle = UniqueHandle<WindowTraits>;

// The device context of a window, released at the end of the scope.
class WindowDc {
public:
    explicit WindowDc(HWND window) : window_(window), dc_(::GetDC(window)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() {
        if (dc_ != nullptr) ::ReleaseDC(window_, dc_);
    }
    HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

// A memory device context compatible with another, deleted at the end of the scope.
class MemoryDc {
public:
    explicit MemoryDc(HDC like) : dc_(::CreateCompatibleDC(like)) {}
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc() {
        if (dc_ != nullptr) ::DeleteDC(dc_);
    }
    HDC Get() const { return dc_; }

private:
    HDC dc_;
};

// BeginPaint and EndPaint around one WM_PAINT.
class PaintScope {
public:
    explicit PaintScope(HWND window) : window_(window) { dc_ = ::BeginPaint(window, &paint_); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;
    ~PaintScope() { ::EndPaint(window_, &paint_); }
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
