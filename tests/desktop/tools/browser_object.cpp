#include "tests/desktop/tools/browser_object.h"

namespace {

// Kept as long as the program runs, so that references are not counted.
class Object : public IDispatch {
public:
    virtual ~Object() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override {
        return E_NOTIMPL;
    }
};

constexpr const wchar_t* members[] = {L"Count",   L"Item",         L"Name",        L"HWND",
                                      L"Visible", L"LocationName", L"LocationURL", L"Navigate"};
enum Member : DISPID {
    count = 1,
    item,
    name,
    window,
    visible,
    locationName,
    locationUrl,
    navigate
};

HRESULT numberOf(LPOLESTR text, DISPID* id) {
    *id = DISPID_UNKNOWN;
    for (std::size_t at = 0; at < std::size(members); ++at)
        if (lstrcmpiW(text, members[at]) == 0) *id = static_cast<DISPID>(at) + 1;
    return *id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

void give(VARIANT* result, const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    wchar_t letters[2048];
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), bytes, letters, 2048);
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocStringLen(letters, static_cast<UINT>(length));
}

std::string ansi(BSTR text) {
    char bytes[8192];
    const int length = static_cast<int>(SysStringLen(text));
    const int count =
        WideCharToMultiByte(CP_ACP, 0, text, length, bytes, sizeof bytes, nullptr, nullptr);
    return std::string(bytes, static_cast<std::size_t>(count));
}

class Browser final : public Object {
public:
    explicit Browser(BrowserPage& page) : page_(page) {}

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) noexcept override {
        return numberOf(names[0], ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
        if (id == navigate) return go(*given);
        if ((kind & DISPATCH_PROPERTYPUT) != 0) return put(id, *given);
        if (result == nullptr) return DISP_E_PARAMNOTOPTIONAL;
        return get(id, *result);
    }

private:
    HRESULT go(const DISPPARAMS& given) {
        if (given.cArgs != 1) return DISP_E_BADPARAMCOUNT;
        const VARIANT& address = given.rgvarg[0];
        if (address.vt != VT_BSTR) return DISP_E_TYPEMISMATCH;
        page_.log("asked");
        if (page_.manner == "refuse") return E_ACCESSDENIED;
        if (page_.manner == "silent") Sleep(8000);
        page_.locationUrl = ansi(address.bstrVal);
        page_.log("navigate " + page_.locationUrl);
        return S_OK;
    }
    HRESULT put(DISPID id, const DISPPARAMS& given) {
        if (id != visible) return DISP_E_MEMBERNOTFOUND;
        page_.log(given.rgvarg[0].boolVal ? "visible" : "hidden");
        return S_OK;
    }
    HRESULT get(DISPID id, VARIANT& result) {
        switch (id) {
            case name: give(&result, page_.name); return S_OK;
            case locationName: give(&result, page_.locationName); return S_OK;
            case locationUrl: give(&result, page_.locationUrl); return S_OK;
            case window:
                result.vt = VT_I8;
                result.llVal = reinterpret_cast<INT_PTR>(page_.window);
                return S_OK;
            case visible:
                result.vt = VT_BOOL;
                result.boolVal = IsWindowVisible(page_.window) ? VARIANT_TRUE : VARIANT_FALSE;
                return S_OK;
            default: return DISP_E_MEMBERNOTFOUND;
        }
    }

    BrowserPage& page_;
};

class Collection final : public Object {
public:
    explicit Collection(BrowserPage& page) : browser_(page) {}

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) noexcept override {
        return numberOf(names[0], ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
        if (result == nullptr) return DISP_E_PARAMNOTOPTIONAL;
        if (id == count) {
            result->vt = VT_I4;
            result->lVal = 1;
            return S_OK;
        }
        if (id != item || given->cArgs != 1) return DISP_E_MEMBERNOTFOUND;
        result->vt = VT_DISPATCH;
        result->pdispVal = given->rgvarg[0].lVal == 0 ? &browser_ : nullptr;
        return S_OK;
    }

private:
    Browser browser_;
};

class Factory final : public IClassFactory {
public:
    explicit Factory(Collection& made) : made_(made) {}
    virtual ~Factory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = id == IID_IUnknown || id == IID_IClassFactory;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id,
                                             void** object) noexcept override {
        return made_.QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }

private:
    Collection& made_;
};

DWORD cookie = 0;

}  // namespace

bool serveShellWindows(BrowserPage& page) {
    static const CLSID classId{
        0x5A2C8D51, 0x4C1E, 0x4D6B, {0x9E, 0x0A, 0x2F, 0x4B, 0x6C, 0x7D, 0x8E, 0x90}};
    static Collection windows(page);
    static Factory factory(windows);
    return SUCCEEDED(CoInitialize(nullptr)) &&
           SUCCEEDED(CoRegisterClassObject(classId, &factory, CLSCTX_LOCAL_SERVER,
                                           REGCLS_MULTIPLEUSE, &cookie));
}

void stopServing() {
    if (cookie != 0) CoRevokeClassObject(cookie);
}
