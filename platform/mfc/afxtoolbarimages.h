#pragma once
#include "afxgdi.h"

#include <memory>

// A growing list of pictures of one size, for ribbons.
class CMFCToolBarImages : public CObject
{
    DECLARE_DYNAMIC(CMFCToolBarImages)

public:
    CMFCToolBarImages();
    ~CMFCToolBarImages() override;

    void SetImageSize(SIZE size, BOOL keep = FALSE); // pixels
    SIZE GetImageSize() const;
    // Pictures from a PNG resource; with `add` behind those that are there. A resource that is no row of pictures of
    // the list's size counts as one picture. False when there is no such resource.
    BOOL Load(UINT id, HINSTANCE module = nullptr, BOOL add = FALSE);
    int AddImage(HBITMAP bitmap, BOOL setBitPerPixel = FALSE); // index, -1 on failure
    int AddIcon(HICON icon, BOOL alphaBlend = FALSE);
    int GetCount() const;
    HICON ExtractIcon(int index); // the caller destroys it; null outside the list
    void Clear();

    struct Pictures; // for the drawing side alone
    const Pictures& pictures() const { return *list; }

private:
    std::unique_ptr<Pictures> list;
};
