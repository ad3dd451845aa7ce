// Fonts, pictures, device contexts, metrics and system colours.
#include "platform/api/user32.h"
#include "platform/memory/desktop.h"
#include "platform/memory/faults.h"
#include "platform/memory/gdi_objects.h"
#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

constexpr std::uintptr_t firstObject = 0x30000000;
constexpr std::uintptr_t firstContext = 0x38000000;
constexpr std::uintptr_t firstBrush = 0x70000;

std::uintptr_t newHandle(std::set<std::uintptr_t>& among, std::uintptr_t first) {
    std::uintptr_t handle = first + ++gdi().made * 4;
    among.insert(handle);
    return handle;
}

}  // namespace

GdiObjects& gdi() {
    static GdiObjects theObjects;
    return theObjects;
}

HBITMAP newBitmap() {
    return reinterpret_cast<HBITMAP>(newHandle(gdi().objects, firstObject));
}

}  // namespace win::memory

namespace win {

using namespace memory;

HDC GetDC(HWND handle) {
    if (handle) windowOf(handle);
    if (faultIn("GetDC")) return nullptr;
    return reinterpret_cast<HDC>(newHandle(gdi().contexts, firstContext));
}

int ReleaseDC(HWND, HDC context) {
    if (!gdi().contexts.erase(reinterpret_cast<std::uintptr_t>(context)))
        refuse("released", "a device context that is not held");
    return 1;
}

int GetDeviceCaps(HDC context, int index) {
    if (!gdi().contexts.contains(reinterpret_cast<std::uintptr_t>(context)))
        refuse("asked", "a device context that is not held");
    if (index != LOGPIXELSX && index != LOGPIXELSY)
        refuse("capability of a device", static_cast<std::uintmax_t>(index));
    return desktop().dpi;
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
    if (font->lfFaceName[0] == '\0') refuse("font", "without a name");
    if (faultIn("CreateFontIndirectA")) return nullptr;
    return reinterpret_cast<HFONT>(newHandle(gdi().objects, firstObject));
}

BOOL DeleteObject(HGDIOBJ object) {
    auto handle = reinterpret_cast<std::uintptr_t>(object);
    if (!gdi().objects.erase(handle)) refuse("deleted what is no object", handle);
    return true;
}

HBRUSH GetSysColorBrush(int index) {
    if (index != COLOR_BTNFACE) refuse("system colour", static_cast<std::uintmax_t>(index));
    return reinterpret_cast<HBRUSH>(firstBrush + static_cast<std::uintptr_t>(index));
}

// Nothing is drawn here.
int FillRect(HDC context, const RECT*, HBRUSH brush) {
    if (!gdi().contexts.contains(reinterpret_cast<std::uintptr_t>(context)))
        refuse("filled", "a device context that is not held");
    if (brush != GetSysColorBrush(COLOR_BTNFACE)) refuse("brush", "not of the system");
    return 1;
}

int GetSystemMetrics(int index) {
    const RECT& screen = desktop().screen;
    switch (index) {
        case SM_CXSCREEN: return screen.right - screen.left;
        case SM_CYSCREEN: return screen.bottom - screen.top;
        case SM_CYCAPTION: return 19;
        case SM_CXICON:
        case SM_CYICON: return 32;
        case SM_CXSMICON:
        case SM_CYSMICON: return 16;
        default: refuse("system metric", static_cast<std::uintmax_t>(index));
    }
}

BOOL SystemParametersInfoA(UINT action, UINT, void* data, UINT) {
    if (action != SPI_GETWORKAREA) refuse("system parameter", action);
    if (faultIn("SystemParametersInfoA")) return false;
    *static_cast<RECT*>(data) = desktop().workArea;
    return true;
}

}  // namespace win
