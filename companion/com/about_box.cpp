#include "companion/com/about_box.h"

#include <cstdint>
#include <string>
#include <utility>

#include "Pienest.h"
#include "companion/com/dispatched.h"
#include "companion/com/guarded.h"
#include "companion/com/host.h"
#include "companion/help_topics.h"
#include "companion/resource_ids.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <htmlhelp.h>
#include <shellapi.h>
// clang-format on

namespace magpie {

namespace {

constexpr BYTE mailWanted = 0;

// The system's viewer on a topic of the file. Without the viewer there is no help.
void openTopic(const std::wstring& file, DWORD_PTR topic, HWND window) {
    // Its windows live in there: it stays loaded.
    static const HMODULE viewer =
        LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (viewer == nullptr) return;
    const auto htmlHelp = reinterpret_cast<decltype(&HtmlHelpW)>(
        reinterpret_cast<void (*)()>(GetProcAddress(viewer, "HtmlHelpW")));
    if (htmlHelp != nullptr) htmlHelp(window, file.c_str(), HH_HELP_CONTEXT, topic);
}

// Who answers the Help button of the box that is up: the owner, or where that opens no topics, as
// the tray, the library itself. A second box may come up over the first.
class Helper {
public:
    Helper(const Host& owner, std::wstring file)
        : owner_(owner), file_(std::move(file)), below_(std::exchange(latest, this)) {}
    ~Helper() { latest = below_; }
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    static void CALLBACK answer(HELPINFO* asked) {
        guarded([asked] {
            if (latest != nullptr)
                latest->show(asked->dwContextId, static_cast<HWND>(asked->hItemHandle));
            return S_OK;
        });
    }

private:
    void show(DWORD_PTR topic, HWND window) const {
        if (!owner_.showHelp(static_cast<int>(topic), window)) openTopic(file_, topic, window);
    }

    static inline const Helper* latest = nullptr;
    const Host& owner_;
    std::wstring file_;
    const Helper* below_;
};

std::wstring aboutText(LONG major, LONG minor, LONG revision) {
    std::wstring text = resourceText(ABOUT_NAME);
    text.append(L"\n").append(resourceText(ABOUT_VERSION)).append(std::to_wstring(major));
    text.append(L".").append(std::to_wstring(minor));
    text.append(L".").append(std::to_wstring(revision));
    text.append(L"\n\n").append(resourceText(CONTACT_MAIL));
    text.append(L"\n").append(resourceText(CONTACT_WEB));
    return text;
}

HRESULT showBox(const Host& owner, const std::wstring& folder, const std::wstring& text) {
    const std::wstring title = resourceText(ABOUT_TITLE);
    const Helper helper(owner, folder + L"\\PNSHelp.chm");
    MSGBOXPARAMSW box{};
    box.cbSize = sizeof box;
    box.hwndOwner = owner.window();
    box.hInstance = moduleHandle();
    box.lpszText = text.c_str();
    box.lpszCaption = title.c_str();
    box.dwStyle = MB_OK | MB_USERICON | MB_HELP | boxLevel();
    box.lpszIcon = MAKEINTRESOURCEW(ABOUT_ICON);
    box.dwContextHelpId = static_cast<DWORD>(helpAbout);
    box.lpfnMsgBoxCallback = Helper::answer;
    return MessageBoxIndirectW(&box) != 0 ? S_OK : E_FAIL;
}

class AboutBox final : public Dispatched<Iout, IID_Iout> {
public:
    HRESULT STDMETHODCALLTYPE About(IDispatch* owner, BSTR folder, LONG major, LONG minor,
                                    LONG revision, VARIANT_BOOL) noexcept override {
        return guarded([&] {
            return showBox(Host(owner), folder != nullptr ? folder : L"",
                           aboutText(major, minor, revision));
        });
    }

    HRESULT STDMETHODCALLTYPE Contact(IDispatch* owner, BYTE what) noexcept override {
        return guarded([&] {
            const std::wstring address = what == mailWanted
                                             ? L"mailto:" + resourceText(CONTACT_MAIL)
                                             : resourceText(CONTACT_WEB);
            const auto started = reinterpret_cast<std::intptr_t>(ShellExecuteW(
                Host(owner).window(), nullptr, address.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
            return started > 32 ? S_OK : E_FAIL;
        });
    }
};

}  // namespace

IDispatch* newAboutBox() {
    return new AboutBox;
}

}  // namespace magpie
