// ole32's drag and drop answered by Windows: the object that it asks of a window.
#include "platform/api/ole32.h"

#include <cstring>
#include <string>

#include "platform/win32/ole_session.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ole2.h>
// clang-format on

namespace win {

namespace {

::FORMATETC textFormat() {
    return {CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool holdsText(::IDataObject* data) {
    ::FORMATETC format = textFormat();
    return data->QueryGetData(&format) == S_OK;
}

bool textOf(::IDataObject* data, std::string& text) {
    ::FORMATETC format = textFormat();
    ::STGMEDIUM medium{};
    if (FAILED(data->GetData(&format, &medium))) return false;
    const auto* bytes = static_cast<const char*>(::GlobalLock(medium.hGlobal));
    if (bytes != nullptr) {
        text.assign(bytes, ::strnlen(bytes, ::GlobalSize(medium.hGlobal)));
        ::GlobalUnlock(medium.hGlobal);
    }
    ::ReleaseStgMedium(&medium);
    return bytes != nullptr;
}

class TextTarget final : public ::IDropTarget {
public:
    TextTarget(::HWND window, TEXTDROPPROC dropped) : window_(window), dropped_(dropped) {}
    virtual ~TextTarget() = default;

    ::HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = id == IID_IUnknown || id == IID_IDropTarget;
        *object = known ? static_cast<::IDropTarget*>(this) : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ::ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ::ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ::ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    ::HRESULT STDMETHODCALLTYPE DragEnter(::IDataObject* data, ::DWORD, ::POINTL,
                                          ::DWORD* effect) noexcept override {
        holdsText_ = holdsText(data);
        *effect = answer(*effect);
        return S_OK;
    }
    ::HRESULT STDMETHODCALLTYPE DragOver(::DWORD, ::POINTL, ::DWORD* effect) noexcept override {
        *effect = answer(*effect);
        return S_OK;
    }
    ::HRESULT STDMETHODCALLTYPE DragLeave() noexcept override { return S_OK; }
    ::HRESULT STDMETHODCALLTYPE Drop(::IDataObject* data, ::DWORD, ::POINTL,
                                     ::DWORD* effect) noexcept override {
        std::string text;
        *effect = answer(*effect);
        if (*effect == DROPEFFECT_NONE) return S_OK;
        if (textOf(data, text))
            dropped_(reinterpret_cast<HWND>(window_), text);
        else
            *effect = DROPEFFECT_NONE;
        return S_OK;
    }

private:
    ::DWORD answer(::DWORD allowed) const {
        const bool takes = holdsText_ && (allowed & DROPEFFECT_COPY) != 0 &&
                           ::IsWindowEnabled(window_) &&
                           ::IsWindowEnabled(::GetAncestor(window_, GA_ROOT));
        return takes ? DROPEFFECT_COPY : DROPEFFECT_NONE;
    }

    ::HWND window_;
    TEXTDROPPROC dropped_;
    bool holdsText_ = false;
    ::ULONG references_ = 1;
};

}  // namespace

HRESULT RegisterDragDrop(HWND window, TEXTDROPPROC dropped) {
    useOle();
    auto* target = new TextTarget(reinterpret_cast<::HWND>(window), dropped);
    const ::HRESULT result = ::RegisterDragDrop(reinterpret_cast<::HWND>(window), target);
    target->Release();
    return result;
}

HRESULT RevokeDragDrop(HWND window) {
    return ::RevokeDragDrop(reinterpret_cast<::HWND>(window));
}

}  // namespace win
