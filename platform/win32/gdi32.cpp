// gdi32 answered by Windows.
#include "platform/api/gdi32.h"

#include <windows.h>

namespace win {

int GetDeviceCaps(HDC context, int index) {
    return ::GetDeviceCaps(reinterpret_cast<::HDC>(context), index);
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
    return reinterpret_cast<HFONT>(
        ::CreateFontIndirectA(reinterpret_cast<const ::LOGFONTA*>(font)));
}

BOOL DeleteObject(HGDIOBJ object) {
    return ::DeleteObject(object);
}

HBRUSH GetSysColorBrush(int index) {
    return reinterpret_cast<HBRUSH>(::GetSysColorBrush(index));
}

int FillRect(HDC context, const RECT* rect, HBRUSH brush) {
    return ::FillRect(reinterpret_cast<::HDC>(context), reinterpret_cast<const ::RECT*>(rect),
                      reinterpret_cast<::HBRUSH>(brush));
}

}  // namespace win
