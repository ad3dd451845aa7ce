// gdi32: what the controls need of fonts and device metrics.
#pragma once

#include "platform/api/constants.h"
#include "platform/api/types.h"

namespace win {

struct LOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    char lfFaceName[32];
};

int GetDeviceCaps(HDC context, int index);
HFONT CreateFontIndirectA(const LOGFONTA* font);
BOOL DeleteObject(HGDIOBJ object);
HBRUSH GetSysColorBrush(int index);                         // belongs to the system (user32)
int FillRect(HDC context, const RECT* rect, HBRUSH brush);  // not 0 for success (user32)

}  // namespace win
