#include "companion/com/module.h"

namespace magpie {

namespace {

HINSTANCE handle = nullptr;

}  // namespace

HINSTANCE moduleHandle() {
    return handle;
}

HRESULT typeInfo(REFIID id, ITypeInfo** info) {
    *info = nullptr;
    wchar_t path[MAX_PATH] = L"";
    if (GetModuleFileNameW(handle, path, MAX_PATH) == 0) return E_FAIL;
    ITypeLib* library = nullptr;
    const HRESULT loaded = LoadTypeLibEx(path, REGKIND_NONE, &library);
    if (FAILED(loaded)) return loaded;
    const HRESULT answer = library->GetTypeInfoOfGuid(id, info);
    library->Release();
    return answer;
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

}  // namespace magpie

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) magpie::handle = instance;
    return TRUE;
}
