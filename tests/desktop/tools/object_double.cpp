// A library that makes objects of one class, with what a host may ask of an object:
//   Value                        a property that keeps whatever it is given
//   Raise TEXT                   raises event 1 with the text, and then event 2 without one
//   Ask HOST MEMBER KIND [TEXT]  calls the host's member by its name and hands its answer back
//   Fail                         fails as one that is denied
//   Odd                          answers a value that is none of a host's kinds
#include <array>
#include <map>
#include <string>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ocidl.h>
#include <olectl.h>
// clang-format on

namespace {

constexpr CLSID classId{0x5B6F41A0, 0x90C3, 0x4C1E, {0x8D, 0x21, 0x3A, 0x77, 0x0E, 0x55, 0x10, 1}};
constexpr IID eventsId{0x5B6F41A0, 0x90C3, 0x4C1E, {0x8D, 0x21, 0x3A, 0x77, 0x0E, 0x55, 0x10, 2}};

enum Member : DISPID { value = 1, raise, ask, fail, odd };

class Object final : public IDispatch, public IConnectionPointContainer, public IConnectionPoint {
public:
    Object() { VariantInit(&value_); }
    virtual ~Object() {
        VariantClear(&value_);
        for (auto& [cookie, sink] : sinks_) sink->Release();
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch) *object = static_cast<IDispatch*>(this);
        if (id == IID_IConnectionPointContainer)
            *object = static_cast<IConnectionPointContainer*>(this);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) noexcept override {
        static const std::map<std::wstring, DISPID> known{
            {L"Value", value}, {L"Raise", raise}, {L"Ask", ask}, {L"Fail", fail}, {L"Odd", odd}};
        const auto found = known.find(names[0]);
        if (found == known.end()) return DISP_E_UNKNOWNNAME;
        ids[0] = found->second;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* handed,
                                     VARIANT* result, EXCEPINFO*, UINT*) noexcept override {
        switch (id) {
            case value:
                return kind == DISPATCH_PROPERTYGET ? VariantCopy(result, &value_)
                                                    : VariantCopy(&value_, &handed->rgvarg[0]);
            case raise: return tellSinks(handed->rgvarg[0]);
            case ask: return askHost(*handed, result);
            case fail: return E_ACCESSDENIED;
            case odd:
                if (result != nullptr) result->vt = VT_ERROR;
                return S_OK;
            default: return DISP_E_MEMBERNOTFOUND;
        }
    }

    // IConnectionPointContainer
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) noexcept override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id,
                                                  IConnectionPoint** point) noexcept override {
        *point = nullptr;
        if (id != eventsId) return CONNECT_E_NOCONNECTION;
        *point = this;
        AddRef();
        return S_OK;
    }

    // IConnectionPoint
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override {
        *id = eventsId;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override {
        *container = this;
        AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override {
        IDispatch* listener = nullptr;
        // As the interface of the events, which is how a strict source asks.
        if (FAILED(sink->QueryInterface(eventsId, reinterpret_cast<void**>(&listener))))
            return CONNECT_E_CANNOTCONNECT;
        sinks_[++lastCookie_] = listener;
        *cookie = lastCookie_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override {
        const auto found = sinks_.find(cookie);
        if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
        found->second->Release();
        sinks_.erase(found);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) noexcept override {
        return E_NOTIMPL;
    }

private:
    HRESULT tellSinks(VARIANT text) {
        DISPPARAMS with{&text, nullptr, 1, 0};
        DISPPARAMS without{nullptr, nullptr, 0, 0};
        for (auto& [cookie, sink] : std::map(sinks_)) {
            sink->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &with, nullptr, nullptr, nullptr);
            sink->Invoke(2, IID_NULL, 0, DISPATCH_METHOD, &without, nullptr, nullptr, nullptr);
        }
        return S_OK;
    }

    // The last argument comes first.
    static HRESULT askHost(DISPPARAMS& handed, VARIANT* result) {
        const UINT last = handed.cArgs - 1;
        IDispatch* host = handed.rgvarg[last].pdispVal;
        BSTR member = handed.rgvarg[last - 1].bstrVal;
        const auto kind = static_cast<WORD>(handed.rgvarg[last - 2].lVal);
        DISPID id = DISPID_UNKNOWN;
        const HRESULT found = host->GetIDsOfNames(IID_NULL, &member, 1, 0, &id);
        if (FAILED(found)) return found;
        DISPPARAMS rest{handed.rgvarg, nullptr, handed.cArgs - 3, 0};
        return host->Invoke(id, IID_NULL, 0, kind, &rest, result, nullptr, nullptr);
    }

    VARIANT value_;
    std::map<DWORD, IDispatch*> sinks_;
    DWORD lastCookie_ = 0;
    ULONG references_ = 1;
};

class Factory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object != nullptr ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id,
                                             void** object) noexcept override {
        auto* made = new Object;
        const HRESULT answer = made->QueryInterface(id, object);
        made->Release();
        return answer;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }
};

}  // namespace

STDAPI DllGetClassObject(REFCLSID wanted, REFIID id, LPVOID* object) {
    static Factory factory;
    *object = nullptr;
    return wanted == classId ? factory.QueryInterface(id, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return S_FALSE;
}
