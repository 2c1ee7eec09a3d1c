#pragma once
// Fonts, pictures and device contexts, as far as text is measured and pictures are handed to controls.

#include "windef.h"

struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;  // pixels
    LONG bmHeight; // pixels
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits; // always null: the pixels stay with the picture
};
using BITMAP = tagBITMAP;

struct tagTEXTMETRICW {
    LONG tmHeight;       // ascent and descent, pixels
    LONG tmAscent;       // pixels
    LONG tmDescent;      // pixels
    LONG tmAveCharWidth; // mean of the letters a-z and A-Z, pixels
};
using TEXTMETRICW = tagTEXTMETRICW;
using TEXTMETRIC = TEXTMETRICW;

inline constexpr int LF_FACESIZE = 32;
struct tagLOGFONTW {
    LONG lfHeight; // negative: size of the letters, pixels
    LONG lfWidth, lfEscapement, lfOrientation;
    LONG lfWeight; // 400 normal, 700 bold
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet;
    BYTE lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    WCHAR lfFaceName[LF_FACESIZE];
};
using LOGFONTW = tagLOGFONTW;
using LOGFONT = LOGFONTW;

inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;
inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;

// Width and height in pixels of `count` characters of text set in one line in the context's font; a line break counts
// as a character. 0 on a bad argument.
BOOL GetTextExtentPoint32W(HDC context, LPCWSTR text, int count, LPSIZE size);
BOOL GetTextMetricsW(HDC context, TEXTMETRICW* metrics);
int GetDeviceCaps(HDC context, int index);       // LOGPIXELSX, LOGPIXELSY
HGDIOBJ SelectObject(HDC context, HGDIOBJ font); // fonts only; returns the earlier font

HFONT CreateFontIndirectW(const LOGFONTW* description);
int GetObjectW(HGDIOBJ object, int size, LPVOID result); // a BITMAP of a picture, a LOGFONTW of a font
BOOL DeleteObject(HGDIOBJ object);                       // a font or a picture; 0 for anything else
