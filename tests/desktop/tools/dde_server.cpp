// DdeServer: a program that can be talked to by dynamic data exchange, as a browser can.
//   dde_server SERVICE LOG MANNER [REPLY_FILE [SECONDS]]
// It writes down "connect TOPIC" and "request TOPIC ITEM", and ends when its standard input
// does, or has a byte. Its manner:
//   answer   gives the bytes of REPLY_FILE, or without it 1
//   refuse   takes conversations and refuses every request
//   silent   answers a request after SECONDS, 8 without them, or when it has to end
//   hang     has a window that answers no message for as long, and then answers
//   die      ends with the first request
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "tests/desktop/tools/peer_log.h"

// The SDK's base comes first.
// clang-format off
#include <windows.h>
#include <ddeml.h>
// clang-format on

namespace {

struct Server {
    DWORD instance = 0;
    HANDLE ending = nullptr;  // an event
    std::string manner;
    std::string reply = "1";
    DWORD pause = 8000;  // milliseconds, past what anybody waits
    PeerLog* log = nullptr;
} server;

std::string textOf(HSZ handle) {
    char text[256] = "";
    DdeQueryStringA(server.instance, handle, text, sizeof text, CP_WINANSI);
    return text;
}

bool isTopic(const std::string& topic) {
    return topic == "WWW_OpenURL" || topic == "WWW_GetWindowInfo";
}

HDDEDATA answer(HSZ topic, HSZ item) {
    server.log->line("request " + textOf(topic) + " " + textOf(item));
    if (server.manner == "refuse") return nullptr;
    if (server.manner == "die") ExitProcess(1);
    if (server.manner == "silent") {
        WaitForSingleObject(server.ending, server.pause);
        server.log->line("late");
    }
    auto* bytes = reinterpret_cast<BYTE*>(server.reply.data());
    return DdeCreateDataHandle(server.instance, bytes, static_cast<DWORD>(server.reply.size() + 1),
                               0, item, CF_TEXT, 0);
}

HDDEDATA CALLBACK served(UINT type, UINT format, HCONV, HSZ topic, HSZ second, HDDEDATA, ULONG_PTR,
                         ULONG_PTR) {
    if (type == XTYP_CONNECT) {
        server.log->line("connect " + textOf(topic));
        return reinterpret_cast<HDDEDATA>(static_cast<INT_PTR>(isTopic(textOf(topic))));
    }
    if (type == XTYP_REQUEST && format == CF_TEXT) return answer(topic, second);
    return nullptr;
}

DWORD WINAPI watchInput(void* window) {
    char byte = 0;
    DWORD read = 0;
    ReadFile(GetStdHandle(STD_INPUT_HANDLE), &byte, 1, &read, nullptr);
    SetEvent(server.ending);
    PostMessageA(static_cast<HWND>(window), WM_CLOSE, 0, 0);
    return 0;
}

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

HWND makeWindow() {
    WNDCLASSEXA definition{};
    definition.cbSize = sizeof definition;
    definition.lpfnWndProc = procedure;
    definition.hInstance = GetModuleHandleA(nullptr);
    definition.lpszClassName = "DdeServer";
    RegisterClassExA(&definition);
    // Not shown: what it takes part in is no matter of windows on the screen.
    return CreateWindowExA(0, "DdeServer", "DdeServer", WS_POPUP, 0, 0, 4, 4, nullptr, nullptr,
                           definition.hInstance, nullptr);
}

void run() {
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 4) return 2;
    PeerLog log(arguments[2]);
    server.log = &log;
    server.manner = arguments[3];
    if (count > 4) server.reply = bytesOf(arguments[4]);
    if (count > 5) server.pause = 1000 * static_cast<DWORD>(std::atoi(arguments[5]));
    server.ending = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HWND window = makeWindow();
    if (DdeInitializeA(&server.instance, served, APPCLASS_STANDARD, 0) != DMLERR_NO_ERROR) return 1;
    HSZ service = DdeCreateStringHandleA(server.instance, arguments[1], CP_WINANSI);
    DdeNameService(server.instance, service, nullptr, DNS_REGISTER);
    CreateThread(nullptr, 0, watchInput, window, 0, nullptr);
    log.line("ready");
    if (server.manner == "hang") WaitForSingleObject(server.ending, server.pause);
    run();
    DdeNameService(server.instance, service, nullptr, DNS_UNREGISTER);
    DdeUninitialize(server.instance);
    return 0;
}
