// The library's way in: it makes objects of its classes without being registered.
#include "Pienest.h"
#include "companion/com/about_box.h"
#include "companion/com/bookmark_import.h"
#include "companion/com/guarded.h"
#include "companion/com/module.h"
#include "companion/com/preferences.h"

namespace magpie {

namespace {

class Factory final : public IClassFactory {
public:
    using Maker = IDispatch* (*)();
    explicit Factory(Maker maker) : maker_(maker) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object != nullptr ? S_OK : E_NOINTERFACE;
    }
    // Lives as long as the library.
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id,
                                             void** object) noexcept override {
        *object = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        return guarded([&] {
            IDispatch* made = maker_();
            const HRESULT answer = made->QueryInterface(id, object);
            made->Release();
            return answer;
        });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
        liveObjects() += lock ? 1 : -1;
        return S_OK;
    }

private:
    Maker maker_;
};

}  // namespace

}  // namespace magpie

STDAPI DllGetClassObject(REFCLSID wanted, REFIID id, LPVOID* object) {
    static magpie::Factory preferences(magpie::newPreferences);
    static magpie::Factory imports(magpie::newBookmarkImport);
    static magpie::Factory abouts(magpie::newAboutBox);
    *object = nullptr;
    if (wanted == CLSID_gcfg) return preferences.QueryInterface(id, object);
    if (wanted == CLSID_mb) return imports.QueryInterface(id, object);
    if (wanted == CLSID_out) return abouts.QueryInterface(id, object);
    return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
    return magpie::liveObjects() == 0 ? S_OK : S_FALSE;
}
