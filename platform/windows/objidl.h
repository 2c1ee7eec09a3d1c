#pragma once
// Streams over memory, as far as pictures are read from them.

#include "windef.h"

struct IUnknown {
    virtual ULONG AddRef() = 0;
    virtual ULONG Release() = 0; // the last release deletes the object

protected:
    ~IUnknown() = default;
};
using LPUNKNOWN = IUnknown*;

struct IStream : IUnknown {
    // Reads up to `size` bytes; fewer at the end (S_FALSE). `read` may be null.
    virtual HRESULT Read(void* buffer, ULONG size, ULONG* read) = 0;
    virtual HRESULT Rewind() = 0;

protected:
    ~IStream() = default;
};
using LPSTREAM = IStream*;

// A stream over a memory block. With `freeOnRelease` the last Release frees the block; otherwise its owner does, after
// the stream is gone. E_INVALIDARG for a bad block or a null result pointer.
HRESULT CreateStreamOnHGlobal(HGLOBAL block, BOOL freeOnRelease, LPSTREAM* stream);
