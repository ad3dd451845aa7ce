// EventSource: the events of an object over a connection point, told to everyone who listens.
#pragma once

#include <map>
#include <vector>

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ocidl.h>
#include <olectl.h>
// clang-format on

namespace magpie {

// Part of an object, which it keeps alive.
class EventSource final : public IConnectionPointContainer, public IConnectionPoint {
public:
    EventSource(IUnknown& owner, const IID& events) : owner_(owner), events_(events) {}
    virtual ~EventSource();
    EventSource(const EventSource&) = delete;
    EventSource& operator=(const EventSource&) = delete;

    // Tells the listeners of an event with these texts, in the order of its parameters. What one of
    // them failed with, or CONNECT_E_NOCONNECTION when there is none.
    HRESULT raise(DISPID event, const std::vector<BSTR>& texts);

    // What an object with these events is asked for besides its own; null for anything else.
    IConnectionPointContainer* asContainer(REFIID id) noexcept {
        return id == IID_IConnectionPointContainer ? this : nullptr;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return owner_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return owner_.Release(); }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints**) noexcept override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id,
                                                  IConnectionPoint** point) noexcept override;
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) noexcept override;

private:
    IUnknown& owner_;
    IID events_;
    std::map<DWORD, IDispatch*> listeners_;
    DWORD lastCookie_ = 0;
};

}  // namespace magpie
