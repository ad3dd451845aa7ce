// The platform's names of the seam come before those of the SDK.
#include "companion/preferences/preferences.h"

#include "companion/help_topics.h"
#include "platform/controls/common_controls.h"

// clang-format off
#include "companion/com/preferences.h"

#include "Pienest.h"
#include "companion/com/dispatched.h"
#include "companion/com/event_source.h"
#include "companion/com/guarded.h"
#include "companion/com/host.h"
// clang-format on

namespace magpie {

namespace {

constexpr DISPID applyCurrent = 1;

HelpTopic topicOf(companion::PreferencesPage page) {
    constexpr HelpTopic topics[] = {helpPreferencesBrowser, helpPreferencesLine,
                                    helpPreferencesWindow, helpPreferencesFiles};
    return topics[page];
}

// A file name as the controls show it.
std::string ansi(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, bytes.data(), length, nullptr, nullptr);
    return bytes;
}

void startControls() {
    static const bool started = [] {
        startCommonControls();
        companion::wirePreferences();
        return true;
    }();
    static_cast<void>(started);
}

// A property of the interface for a setting of the same name.
#define BYTE_PROPERTY(name)                                               \
    HRESULT STDMETHODCALLTYPE put_##name(BYTE value) noexcept override {  \
        settings_.name = value;                                           \
        return S_OK;                                                      \
    }                                                                     \
    HRESULT STDMETHODCALLTYPE get_##name(BYTE* value) noexcept override { \
        *value = settings_.name;                                          \
        return S_OK;                                                      \
    }
#define TRUTH_PROPERTY(name)                                                      \
    HRESULT STDMETHODCALLTYPE put_##name(VARIANT_BOOL value) noexcept override {  \
        settings_.name = value != VARIANT_FALSE;                                  \
        return S_OK;                                                              \
    }                                                                             \
    HRESULT STDMETHODCALLTYPE get_##name(VARIANT_BOOL* value) noexcept override { \
        *value = settings_.name ? VARIANT_TRUE : VARIANT_FALSE;                   \
        return S_OK;                                                              \
    }

class Preferences final : public Dispatched<Igcfg, IID_Igcfg> {
public:
    ~Preferences() override { SysFreeString(appPath_); }

    BYTE_PROPERTY(lineCheck)
    BYTE_PROPERTY(onlineAction)
    TRUTH_PROPERTY(noTrayIcon)
    TRUTH_PROPERTY(onlineOnly)
    TRUTH_PROPERTY(activeIcon)
    BYTE_PROPERTY(shortcutMode)
    TRUTH_PROPERTY(fullWindow)
    BYTE_PROPERTY(browserType)
    TRUTH_PROPERTY(useKeystrokes)
    TRUTH_PROPERTY(autoLoadURLs)
    TRUTH_PROPERTY(autoSaveURLs)
    TRUTH_PROPERTY(autoLoadSettings)
    TRUTH_PROPERTY(autoSaveSettings)
    BYTE_PROPERTY(Placement)
    TRUTH_PROPERTY(iconOnTop)
    TRUTH_PROPERTY(mainOnTop)

    HRESULT STDMETHODCALLTYPE put_appPath(BSTR value) noexcept override {
        return SysReAllocString(&appPath_, value) ? S_OK : E_OUTOFMEMORY;
    }
    HRESULT STDMETHODCALLTYPE get_appPath(BSTR* value) noexcept override {
        *value = SysAllocString(appPath_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE put_Host(IDispatch* value) noexcept override {
        host_.reset(value);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE put_Application(IDispatch* value) noexcept override {
        application_.reset(value);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Show(VARIANT* result) noexcept override {
        VariantInit(result);
        // The host may give the object up while the dialog is up.
        AddRef();
        const HRESULT answer = guarded([this] {
            edit();
            return S_OK;
        });
        Release();
        return answer;
    }

protected:
    void* otherInterface(REFIID id) noexcept override { return events_.asContainer(id); }

private:
    void edit() {
        startControls();
        companion::PreferencesHost host;
        host.findCurrentVersion = [this](const std::string& file) {
            return ansi(host_.findCurrentVersion(std::wstring(file.begin(), file.end()).c_str()));
        };
        host.apply = [this](const companion::PreferenceSettings& wanted) {
            settings_ = wanted;
            events_.raise(applyCurrent, {});
        };
        host.help = [this](companion::PreferencesPage page) {
            host_.showHelp(topicOf(page), reinterpret_cast<HWND>(companion::Preferences.hWnd()));
        };
        companion::editPreferences(settings_, host, reinterpret_cast<win::HWND>(host_.window()));
    }

    companion::PreferenceSettings settings_;
    BSTR appPath_ = nullptr;
    Host host_;
    Host application_;
    EventSource events_{*this, DIID_DgcfgEvents};
};

}  // namespace

IDispatch* newPreferences() {
    return new Preferences;
}

}  // namespace magpie
