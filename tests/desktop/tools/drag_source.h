// Drag source: what a program has to bring along to let the user drag a piece of data out of it.
#pragma once

#include <cstring>
#include <functional>
#include <string>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ole2.h>
#include <shlobj.h>
// clang-format on

// A piece of data in one format. It lives where its maker put it: references do not count.
class DragData final : public IDataObject {
public:
    DragData(CLIPFORMAT format, const std::string& bytes) : format_(format), bytes_(bytes) {}
    virtual ~DragData() = default;

    // Text ends in a zero.
    static DragData text(const std::string& text) { return {CF_TEXT, text + '\0'}; }
    // A file by its path, and nothing that could be taken for a text.
    static DragData file(const std::string& path) {
        DROPFILES head{};
        head.pFiles = sizeof head;
        std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
        return {CF_HDROP, bytes.append(path).append(2, '\0')};
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDataObject;
        *object = known ? static_cast<IDataObject*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        const bool held = format->cfFormat == format_ && (format->tymed & TYMED_HGLOBAL) != 0;
        return held ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes_.size());
        std::memcpy(GlobalLock(memory), bytes_.data(), bytes_.size());
        GlobalUnlock(memory);
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memory;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

private:
    CLIPFORMAT format_;
    std::string bytes_;
};

// The drag itself: it ends when the left button is up or Escape is pressed. `onFeedback` hears
// what the window under the mouse would do, a DROPEFFECT_ number, as often as the system tells.
class DragSource final : public IDropSource {
public:
    explicit DragSource(std::function<void(DWORD)> onFeedback)
        : onFeedback_(std::move(onFeedback)) {}
    virtual ~DragSource() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDropSource;
        *object = known ? static_cast<IDropSource*>(this) : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escape, DWORD keys) override {
        if (escape) return DRAGDROP_S_CANCEL;
        return (keys & MK_LBUTTON) == 0 ? DRAGDROP_S_DROP : S_OK;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) override {
        onFeedback_(effect);
        return DRAGDROP_S_USEDEFAULTCURSORS;
    }

private:
    std::function<void(DWORD)> onFeedback_;
};

// Runs a drag of the data with the left button, which is down; answers whether it was copied.
inline bool dragOut(DragData& data, DragSource& source) {
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT result = DoDragDrop(&data, &source, DROPEFFECT_COPY | DROPEFFECT_LINK, &effect);
    return result == DRAGDROP_S_DROP && effect == DROPEFFECT_COPY;
}
