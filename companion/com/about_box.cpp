#include "companion/com/about_box.h"

#include <string>

#include "Pienest.h"
#include "companion/com/dispatched.h"
#include "companion/com/host.h"
#include "companion/help_topics.h"
#include "companion/resource_ids.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

namespace magpie {

namespace {

constexpr BYTE mailWanted = 0;

// Who answers the Help button of the box that is up. An owner without help leaves it without
// effect.
const Host* helper = nullptr;

void CALLBACK showHelp(HELPINFO* asked) {
    if (helper != nullptr)
        helper->showHelp(static_cast<int>(asked->dwContextId),
                         static_cast<HWND>(asked->hItemHandle));
}

class AboutBox final : public Dispatched<Iout, IID_Iout> {
public:
    HRESULT STDMETHODCALLTYPE About(IDispatch* owner, BSTR, LONG major, LONG minor, LONG revision,
                                    VARIANT_BOOL) noexcept override {
        std::wstring text = resourceText(ABOUT_NAME);
        text.append(L"\n").append(resourceText(ABOUT_VERSION)).append(std::to_wstring(major));
        text.append(L".").append(std::to_wstring(minor));
        text.append(L".").append(std::to_wstring(revision));
        text.append(L"\n\n").append(resourceText(CONTACT_MAIL));
        text.append(L"\n").append(resourceText(CONTACT_WEB));
        const std::wstring title = resourceText(ABOUT_TITLE);
        const Host host(owner);
        MSGBOXPARAMSW box{};
        box.cbSize = sizeof box;
        box.hwndOwner = host.window();
        box.hInstance = moduleHandle();
        box.lpszText = text.c_str();
        box.lpszCaption = title.c_str();
        box.dwStyle = MB_OK | MB_USERICON | MB_HELP;
        box.lpszIcon = MAKEINTRESOURCEW(ABOUT_ICON);
        box.dwContextHelpId = static_cast<DWORD>(helpAbout);
        box.lpfnMsgBoxCallback = showHelp;
        helper = &host;
        const int answer = MessageBoxIndirectW(&box);
        helper = nullptr;
        return answer != 0 ? S_OK : E_FAIL;
    }

    HRESULT STDMETHODCALLTYPE Contact(IDispatch* owner, BYTE what) noexcept override {
        const std::wstring address = what == mailWanted ? L"mailto:" + resourceText(CONTACT_MAIL)
                                                        : resourceText(CONTACT_WEB);
        const auto started = reinterpret_cast<std::intptr_t>(ShellExecuteW(
            Host(owner).window(), nullptr, address.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
        return started > 32 ? S_OK : E_FAIL;
    }
};

}  // namespace

IDispatch* newAboutBox() {
    return new AboutBox;
}

}  // namespace magpie
