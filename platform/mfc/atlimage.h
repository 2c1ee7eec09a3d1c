#pragma once
// A picture.

#include "objidl.h"
#include "wingdi.h"

#include <string>

// Owns its bitmap. Loading takes the formats that the system knows and reads the header, as far as that tells the size:
// pixels are decoded when they are about to be seen. A picture whose sides or memory (64 MiB) are out of bounds is
// refused.
class CImage
{
public:
    CImage() = default;
    ~CImage() { Destroy(); }
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    HRESULT Load(IStream* stream); // E_FAIL: not a picture
    HRESULT Load(LPCWSTR path);
    bool IsNull() const { return bitmap == nullptr; }
    int GetWidth() const;  // pixels, 0 when there is none
    int GetHeight() const; // pixels, 0 when there is none
    void Attach(HBITMAP other);
    HBITMAP Detach(); // the caller owns it
    void Destroy();
    operator HBITMAP() const { return bitmap; }

private:
    HBITMAP bitmap = nullptr;
};
