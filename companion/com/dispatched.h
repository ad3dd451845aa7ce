// Dispatched: an object behind one dual interface of the library's own type library, by which its
// members are found and called also by name.
#pragma once

#include "companion/com/module.h"

namespace magpie {

template <class Interface, const IID& interfaceId>
class Dispatched : public Interface {
public:
    virtual ~Dispatched() { --liveObjects(); }
    Dispatched(const Dispatched&) = delete;
    Dispatched& operator=(const Dispatched&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == interfaceId;
        *object = known ? static_cast<Interface*>(this) : otherInterface(id);
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

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept override {
        return typeInfo(interfaceId, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept override {
        ITypeInfo* info = nullptr;
        HRESULT answer = typeInfo(interfaceId, &info);
        if (FAILED(answer)) return answer;
        answer = DispGetIDsOfNames(info, names, count, ids);
        info->Release();
        return answer;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* handed,
                                     VARIANT* result, EXCEPINFO* failure,
                                     UINT* wrong) noexcept override {
        ITypeInfo* info = nullptr;
        HRESULT answer = typeInfo(interfaceId, &info);
        if (FAILED(answer)) return answer;
        answer = DispInvoke(static_cast<Interface*>(this), info, id, kind, handed, result, failure,
                            wrong);
        info->Release();
        return answer;
    }

protected:
    Dispatched() { ++liveObjects(); }
    // Whatever else the object can be asked for; null for nothing.
    virtual void* otherInterface(REFIID) noexcept { return nullptr; }

private:
    ULONG references_ = 1;
};

}  // namespace magpie
