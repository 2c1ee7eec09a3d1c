#pragma once
// Image lists and the link control.

#include "windef.h"
#include "winuser.h"

#define WC_LINK L"SysLink"

inline constexpr int MAX_LINKID_TEXT = 48;
inline constexpr int L_MAX_URL_LENGTH = 2048 + 32 + 4;
struct tagLITEM {
    UINT mask;
    int iLink; // position of the link in the text, from 0
    UINT state;
    UINT stateMask;
    WCHAR szID[MAX_LINKID_TEXT];
    WCHAR szUrl[L_MAX_URL_LENGTH]; // the link's href
};
using LITEM = tagLITEM;

// What NM_CLICK and NM_RETURN of a link control point to.
struct tagNMLINK {
    NMHDR hdr;
    LITEM item;
};
using NMLINK = tagNMLINK;
using PNMLINK = NMLINK*;

inline constexpr UINT ILC_MASK = 0x0001;
inline constexpr UINT ILC_COLOR32 = 0x0020;
inline constexpr UINT ILD_NORMAL = 0;

// A list of pictures of one size in pixels. A bitmap is cut into pictures of that size from left to right; one that is
// smaller than the size counts as one picture.
HIMAGELIST ImageList_Create(int width, int height, UINT flags, int initial, int grow);
BOOL ImageList_Destroy(HIMAGELIST list);
int ImageList_AddMasked(HIMAGELIST list, HBITMAP bitmap,
                        COLORREF mask); // index of the first new picture, -1 on failure
int ImageList_Add(HIMAGELIST list, HBITMAP bitmap, HBITMAP mask);
int ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon); // index -1 appends
int ImageList_GetImageCount(HIMAGELIST list);
BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height);
HICON ImageList_GetIcon(HIMAGELIST list, int index, UINT flags); // the caller destroys it
