#pragma once
// COM for a scope and COM interface pointers, released on every path.
#include <windows.h>
#include <objbase.h>

namespace qs::win {

// A COM interface pointer, released at the end of its owner's life.
template <typename Interface>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;
    ~ComPtr() {
        if (p_ != nullptr) p_->Release();
    }
    Interface* operator->() const { return p_; }
    Interface* Get() const { return p_; }
    // The address to receive a fresh pointer into.
    Interface** Put() {
        if (p_ != nullptr) p_->Release();
        p_ = nullptr;
        return &p_;
    }

private:
    Interface* p_ = nullptr;
};

// COM for the calling thread for the scope, when it is not already there in
// another mode.
class ComScope {
public:
    ComScope() : result_(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;
    ~ComScope() {
        if (SUCCEEDED(result_)) ::CoUninitialize();
    }

private:
    HRESULT result_;
};

}  // namespace qs::win
