#include "companion/com/about_box.h"

#include <cstdint>
#include <string>
#include <string_view>
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
#include <commctrl.h>
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

// The help of the box that comes up while it lives: by the box's Help button, which is without
// effect under Wine, and by F1. The owner opens the topic, or where it opens none, as the tray, the
// library itself.
class BoxHelp {
public:
    BoxHelp(const Host& owner, std::wstring file) : owner_(owner), file_(std::move(file)) {
        waiting = this;
        hook_ = SetWindowsHookExW(WH_CBT, activated, nullptr, GetCurrentThreadId());
    }
    ~BoxHelp() { waitNoMore(); }
    BoxHelp(const BoxHelp&) = delete;
    BoxHelp& operator=(const BoxHelp&) = delete;

private:
    // The first dialog that becomes the active window is the box.
    static LRESULT CALLBACK activated(int code, WPARAM wParam, LPARAM lParam) {
        HWND window = reinterpret_cast<HWND>(wParam);
        wchar_t name[8] = L"";
        if (code == HCBT_ACTIVATE && waiting != nullptr && GetClassNameW(window, name, 8) != 0 &&
            std::wstring_view(name) == L"#32770") {
            SetWindowSubclass(window, listen, 0, reinterpret_cast<DWORD_PTR>(waiting));
            waiting->waitNoMore();
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static LRESULT CALLBACK listen(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR help) {
        if (message == WM_HELP || (message == WM_COMMAND && LOWORD(wParam) == IDHELP)) {
            reinterpret_cast<const BoxHelp*>(help)->show(box);
            return TRUE;
        }
        if (message == WM_NCDESTROY) RemoveWindowSubclass(box, listen, 0);
        return DefSubclassProc(box, message, wParam, lParam);
    }

    void show(HWND box) const {
        guarded([this, box] {
            if (!owner_.showHelp(helpAbout, box)) openTopic(file_, helpAbout, box);
            return S_OK;
        });
    }

    void waitNoMore() {
        if (waiting == this) waiting = nullptr;
        if (HHOOK hook = std::exchange(hook_, nullptr)) UnhookWindowsHookEx(hook);
    }

    static inline BoxHelp* waiting = nullptr;
    const Host& owner_;
    std::wstring file_;
    HHOOK hook_ = nullptr;
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
    const BoxHelp help(owner, folder + L"\\PNSHelp.chm");
    MSGBOXPARAMSW box{};
    box.cbSize = sizeof box;
    box.hwndOwner = owner.window();
    box.hInstance = moduleHandle();
    box.lpszText = text.c_str();
    box.lpszCaption = title.c_str();
    box.dwStyle = MB_OK | MB_USERICON | MB_HELP | boxLevel();
    box.lpszIcon = MAKEINTRESOURCEW(ABOUT_ICON);
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
