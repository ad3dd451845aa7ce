// BrowserDouble: a window that stands in for a browser's.
//   browser_double CLASS TITLE LOG ADDRESS [PAGE_TITLE [NAME [MANNER]]]
// With a page title it offers automation under the program name NAME ("Microsoft Internet
// Explorer"). Sent to an address, it goes there; in the manner "refuse" it denies that, and in
// the manner "silent" it takes eight seconds. It shows ADDRESS, copies it for Ctrl+C, takes another
// one for Ctrl+V, and goes there for Enter. It writes down "down KEY", "up KEY" and what comes of
// them, and ends when its standard input does, or has a byte.
#include <cstring>
#include <string>

#include "tests/desktop/tools/browser_object.h"
#include "tests/desktop/tools/peer_log.h"

namespace {

PeerLog* keptLog = nullptr;
BrowserPage page;

void copyAddress(HWND window) {
    if (!OpenClipboard(window)) return keptLog->line("no clipboard");
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, page.locationUrl.size() + 1);
    std::memcpy(GlobalLock(memory), page.locationUrl.c_str(), page.locationUrl.size() + 1);
    GlobalUnlock(memory);
    SetClipboardData(CF_TEXT, memory);
    CloseClipboard();
    keptLog->line("copied");
}

void pasteAddress(HWND window) {
    if (!OpenClipboard(window)) return keptLog->line("no clipboard");
    if (HANDLE memory = GetClipboardData(CF_TEXT)) {
        page.locationUrl = static_cast<const char*>(GlobalLock(memory));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    keptLog->line("pasted " + page.locationUrl);
}

void press(HWND window, WPARAM key) {
    const bool control = GetKeyState(VK_CONTROL) < 0;
    if (control && key == 'C') copyAddress(window);
    if (control && key == 'V') pasteAddress(window);
    if (key == VK_RETURN) keptLog->line("go " + page.locationUrl);
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SYSKEYDOWN:
        case WM_KEYDOWN:
            keptLog->line("down " + std::to_string(wParam));
            press(window, wParam);
            return 0;
        case WM_SYSKEYUP:
        case WM_KEYUP: keptLog->line("up " + std::to_string(wParam)); return 0;
        case WM_DESTROY: PostQuitMessage(0); return 0;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

HWND makeWindow(const char* className, const char* title) {
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpfnWndProc = procedure;
    definition.hInstance = GetModuleHandleA(nullptr);
    definition.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    definition.lpszClassName = className;
    RegisterClassExA(&definition);
    return CreateWindowExA(0, className, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 760, 640, 480,
                           240, nullptr, nullptr, definition.hInstance, nullptr);
}

DWORD WINAPI watchInput(void* window) {
    char byte = 0;
    DWORD read = 0;
    ReadFile(GetStdHandle(STD_INPUT_HANDLE), &byte, 1, &read, nullptr);
    PostMessageA(static_cast<HWND>(window), WM_CLOSE, 0, 0);
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 5) return 2;
    PeerLog log(arguments[3]);
    keptLog = &log;
    page.log = [](const std::string& text) { keptLog->line(text); };
    page.locationUrl = arguments[4];
    page.locationName = count > 5 ? arguments[5] : "";
    page.name = count > 6 ? arguments[6] : "Microsoft Internet Explorer";
    page.manner = count > 7 ? arguments[7] : "";
    page.window = makeWindow(arguments[1], arguments[2]);
    if (count > 5 && !serveShellWindows(page)) return 1;
    CreateThread(nullptr, 0, watchInput, page.window, 0, nullptr);
    log.line("ready");
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    stopServing();
    return 0;
}
