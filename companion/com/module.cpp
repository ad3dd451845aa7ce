#include "companion/com/module.h"

#include "companion/com/guarded.h"

namespace magpie {

namespace {

constexpr DWORD longestPath = 32768;  // letters

HINSTANCE handle = nullptr;

HRESULT loadTypes(ITypeLib** library) {
    std::wstring path(longestPath, L'\0');
    if (GetModuleFileNameW(handle, path.data(), longestPath) == 0) return E_FAIL;
    return LoadTypeLibEx(path.c_str(), REGKIND_NONE, library);
}

}  // namespace

HINSTANCE moduleHandle() {
    return handle;
}

HRESULT typeInfo(REFIID id, ITypeInfo** info) noexcept {
    *info = nullptr;
    return guarded([&]() -> HRESULT {
        // Every call of an object by name asks for it: the file is read once.
        static ITypeLib* library = nullptr;
        const HRESULT loaded = library != nullptr ? S_OK : loadTypes(&library);
        return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(id, info);
    });
}

LONG& liveObjects() {
    static LONG live = 0;
    return live;
}

std::wstring resourceText(UINT id) {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(handle, id, reinterpret_cast<wchar_t*>(&text), 0);
    return {text, static_cast<std::size_t>(length)};
}

UINT boxLevel() {
    bool covered = false;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            // Small windows as the pad and the tips leave a box in sight.
            const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
            if (IsWindowVisible(window) && (style & WS_EX_TOPMOST) && !(style & WS_EX_TOOLWINDOW))
                *reinterpret_cast<bool*>(found) = true;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&covered));
    return covered ? MB_TOPMOST : 0;
}

}  // namespace magpie

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) magpie::handle = instance;
    return TRUE;
}
