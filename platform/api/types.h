// Types: the platform's integers, handles and plain records, with the layout
// they have on 64-bit Windows, so that a message's record goes through the seam
// untouched on either side.
#pragma once

#include <cstddef>
#include <cstdint>

namespace win {

using BOOL = std::int32_t;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using INT = std::int32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONG_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using ATOM = std::uint16_t;
using COLORREF = std::uint32_t;
using LSTATUS = std::int32_t;
using HRESULT = std::int32_t;

// Handles are opaque pointers of distinct types; null is "no such object".
using HWND = struct HwndTag*;
using HINSTANCE = struct HinstanceTag*;
using HICON = struct HiconTag*;
using HCURSOR = HICON;
using HMENU = struct HmenuTag*;
using HFONT = struct HfontTag*;
using HBITMAP = struct HbitmapTag*;
using HBRUSH = struct HbrushTag*;
using HDC = struct HdcTag*;
using HRGN = struct HrgnTag*;
using HKEY = struct HkeyTag*;
using HIMAGELIST = struct HimagelistTag*;
using HGDIOBJ = void*;
using HANDLE = void*;
using HGLOBAL = void*;

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);
using FARPROC = void (*)();  // to be called as what the library's header says

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

constexpr WORD LOWORD(std::uintptr_t value) {
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(std::uintptr_t value) {
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}

// The signed halves of a mouse message's lParam.
constexpr int xOf(LPARAM value) {
    return static_cast<std::int16_t>(LOWORD(static_cast<std::uintptr_t>(value)));
}
constexpr int yOf(LPARAM value) {
    return static_cast<std::int16_t>(HIWORD(static_cast<std::uintptr_t>(value)));
}
constexpr LPARAM makeLParam(int low, int high) {
    return static_cast<LPARAM>((static_cast<std::uint32_t>(high & 0xFFFF) << 16) |
                               static_cast<std::uint32_t>(low & 0xFFFF));
}
constexpr WPARAM makeWParam(int low, int high) {
    return static_cast<WPARAM>((static_cast<std::uint32_t>(high & 0xFFFF) << 16) |
                               static_cast<std::uint32_t>(low & 0xFFFF));
}

// A number in the place of a name (MAKEINTRESOURCE).
inline const char* resourceName(WORD number) {
    return reinterpret_cast<const char*>(static_cast<std::uintptr_t>(number));
}

}  // namespace win
