#include "companion/com/event_source.h"

#include "companion/com/guarded.h"

namespace magpie {

EventSource::~EventSource() {
    for (auto& [cookie, listener] : listeners_) listener->Release();
}

HRESULT EventSource::raise(DISPID event, const std::vector<BSTR>& texts) {
    // The last parameter comes first.
    std::vector<VARIANT> handed(texts.size());
    for (std::size_t at = 0; at < texts.size(); ++at) {
        VARIANT& value = handed[texts.size() - 1 - at];
        VariantInit(&value);
        value.vt = VT_BSTR;
        value.bstrVal = texts[at];
    }
    HRESULT result = listeners_.empty() ? CONNECT_E_NOCONNECTION : S_OK;
    for (auto& [cookie, listener] : std::map(listeners_)) {
        DISPPARAMS parameters{handed.data(), nullptr, static_cast<UINT>(handed.size()), 0};
        const HRESULT answer =
            listener->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                             nullptr, nullptr, nullptr);
        if (FAILED(answer)) result = answer;
    }
    return result;
}

HRESULT EventSource::QueryInterface(REFIID id, void** object) noexcept {
    if (id == IID_IConnectionPoint) {
        *object = static_cast<IConnectionPoint*>(this);
        AddRef();
        return S_OK;
    }
    return owner_.QueryInterface(id, object);
}

HRESULT EventSource::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
    *points = nullptr;
    return E_NOTIMPL;
}

HRESULT EventSource::FindConnectionPoint(REFIID id, IConnectionPoint** point) noexcept {
    *point = id == events_ ? this : nullptr;
    if (*point == nullptr) return CONNECT_E_NOCONNECTION;
    AddRef();
    return S_OK;
}

HRESULT EventSource::GetConnectionInterface(IID* id) noexcept {
    *id = events_;
    return S_OK;
}

HRESULT EventSource::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept {
    *container = this;
    AddRef();
    return S_OK;
}

HRESULT EventSource::Advise(IUnknown* sink, DWORD* cookie) noexcept {
    IDispatch* listener = nullptr;
    if (FAILED(sink->QueryInterface(events_, reinterpret_cast<void**>(&listener))) &&
        FAILED(sink->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&listener))))
        return CONNECT_E_CANNOTCONNECT;
    const HRESULT kept = guarded([&] {
        listeners_[lastCookie_ + 1] = listener;
        *cookie = ++lastCookie_;
        return S_OK;
    });
    if (FAILED(kept)) listener->Release();
    return kept;
}

HRESULT EventSource::Unadvise(DWORD cookie) noexcept {
    const auto found = listeners_.extract(cookie);
    if (found.empty()) return CONNECT_E_NOCONNECTION;
    found.mapped()->Release();
    return S_OK;
}

HRESULT EventSource::EnumConnections(IEnumConnections** connections) noexcept {
    *connections = nullptr;
    return E_NOTIMPL;
}

}  // namespace magpie
