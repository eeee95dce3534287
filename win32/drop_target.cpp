#include "drop_target.h"

#include "ole_on_demand.h"

#include <string>

namespace qs::win {

namespace {

FORMATETC TextFormat(CLIPFORMAT format) { return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}; }

bool OffersText(IDataObject* data) {
    FORMATETC wide = TextFormat(CF_UNICODETEXT);
    FORMATETC narrow = TextFormat(CF_TEXT);
    return data != nullptr && (data->QueryGetData(&wide) == S_OK || data->QueryGetData(&narrow) == S_OK);
}

// The storage medium of a GetData call, released at the end of the scope.
class Medium {
public:
    Medium() = default;
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
    ~Medium() {
        if (filled_) ::ReleaseStgMedium(&medium_);
    }
    bool Get(IDataObject* data, CLIPFORMAT format) {
        FORMATETC wanted = TextFormat(format);
        filled_ = data->GetData(&wanted, &medium_) == S_OK && medium_.tymed == TYMED_HGLOBAL;
        return filled_;
    }
    HGLOBAL Global() const { return medium_.hGlobal; }

private:
    STGMEDIUM medium_{};
    bool filled_ = false;
};

// Global memory locked for the scope.
class GlobalLockScope {
public:
    explicit GlobalLockScope(HGLOBAL memory) : memory_(memory), data_(::GlobalLock(memory)) {}
    GlobalLockScope(const GlobalLockScope&) = delete;
    GlobalLockScope& operator=(const GlobalLockScope&) = delete;
    ~GlobalLockScope() {
        if (data_ != nullptr) ::GlobalUnlock(memory_);
    }
    const void* Data() const { return data_; }
    SIZE_T Size() const { return ::GlobalSize(memory_); }

private:
    HGLOBAL memory_;
    void* data_;
};

// The dropped text, wide if offered so, else from the 8-bit code page; the
// first line only, as a single-line box takes it.
std::wstring DroppedText(IDataObject* data) {
    std::wstring text;
    Medium medium;
    if (medium.Get(data, CF_UNICODETEXT)) {
        GlobalLockScope lock(medium.Global());
        if (lock.Data() == nullptr) return L"";
        const auto* chars = static_cast<const wchar_t*>(lock.Data());
        text.assign(chars, wcsnlen(chars, lock.Size() / sizeof(wchar_t)));
    } else {
        Medium narrow;
        if (!narrow.Get(data, CF_TEXT)) return L"";
        GlobalLockScope lock(narrow.Global());
        if (lock.Data() == nullptr) return L"";
        const auto* chars = static_cast<const char*>(lock.Data());
        const int length = static_cast<int>(strnlen(chars, lock.Size()));
        const int wide = ::MultiByteToWideChar(CP_ACP, 0, chars, length, nullptr, 0);
        text.resize(static_cast<std::size_t>(wide));
        if (wide > 0) ::MultiByteToWideChar(CP_ACP, 0, chars, length, text.data(), wide);
    }
    const auto end = text.find_first_of(L"\r\n");
    return end == std::wstring::npos ? text : text.substr(0, end);
}

}  // namespace

class TextDropTarget : public IDropTarget {
public:
    TextDropTarget(HWND edit, ui::TextBox& box) : edit_(edit), box_(box) {}
    TextDropTarget(const TextDropTarget&) = delete;
    TextDropTarget& operator=(const TextDropTarget&) = delete;
    virtual ~TextDropTarget() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        if (id == IID_IUnknown || id == IID_IDropTarget) {
            *object = static_cast<IDropTarget*>(this);
            AddRef();
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        accepts_ = OffersText(data) && box_.Enabled() && !box_.Locked();
        *effect = accepts_ ? DROPEFFECT_COPY : DROPEFFECT_NONE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
        *effect = accepts_ ? DROPEFFECT_COPY : DROPEFFECT_NONE;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override {
        accepts_ = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
        *effect = DROPEFFECT_NONE;
        if (!accepts_) return S_OK;
        accepts_ = false;
        const std::wstring text = DroppedText(data);
        if (text.empty()) return S_OK;
        // Written into the window as typing would be: the edit control's
        // change notification reports it to the box, so Change fires.
        ::SetFocus(edit_);
        ::SendMessageW(edit_, EM_SETSEL, 0, -1);
        ::SendMessageW(edit_, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
        *effect = DROPEFFECT_COPY;
        return S_OK;
    }

private:
    HWND edit_;
    ui::TextBox& box_;
    ULONG references_ = 1;
    bool accepts_ = false;
};

TextDropRegistration::TextDropRegistration(HWND edit, ui::TextBox& box)
    : edit_(edit), target_(new TextDropTarget(edit, box)) {
    registered_ = OleOnDemand::Start() && SUCCEEDED(::RegisterDragDrop(edit_, target_));
}

TextDropRegistration::~TextDropRegistration() {
    if (registered_ && ::IsWindow(edit_)) ::RevokeDragDrop(edit_);
    target_->Release();
}

}  // namespace qs::win
