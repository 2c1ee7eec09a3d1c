#include "objidl.h"
#include "winbase.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

namespace
{
std::unordered_map<HGLOBAL, std::unique_ptr<std::vector<BYTE>>>& blocks()
{
    static std::unordered_map<HGLOBAL, std::unique_ptr<std::vector<BYTE>>> map;
    return map;
}

std::vector<BYTE>* blockOf(HGLOBAL handle)
{
    const auto known = blocks().find(handle);
    if (known == blocks().end()) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    return known->second.get();
}

class MemoryStream final : public IStream
{
public:
    MemoryStream(HGLOBAL source, bool own) : block(source), owner(own) {}

    ULONG AddRef() override { return ++references; }
    ULONG Release() override
    {
        const ULONG left = --references;
        if (left == 0) {
            if (owner)
                GlobalFree(block);
            delete this;
        }
        return left;
    }
    HRESULT Read(void* buffer, ULONG size, ULONG* read) override
    {
        const std::vector<BYTE>* bytes = blockOf(block);
        const std::size_t count = bytes ? std::min<std::size_t>(size, bytes->size() - position) : 0;
        if (count > 0)
            std::memcpy(buffer, bytes->data() + position, count);
        position += count;
        if (read)
            *read = static_cast<ULONG>(count);
        return count == size ? S_OK : S_FALSE;
    }
    HRESULT Rewind() override
    {
        position = 0;
        return S_OK;
    }

private:
    HGLOBAL block;
    bool owner;
    std::size_t position = 0;
    ULONG references = 1;
};
} // namespace

HGLOBAL GlobalAlloc(UINT, SIZE_T bytes)
{
    auto block = std::make_unique<std::vector<BYTE>>(bytes);
    HGLOBAL handle = block.get();
    blocks()[handle] = std::move(block);
    return handle;
}

LPVOID GlobalLock(HGLOBAL block)
{
    std::vector<BYTE>* bytes = blockOf(block);
    return bytes ? bytes->data() : nullptr;
}

BOOL GlobalUnlock(HGLOBAL block)
{
    return blockOf(block) != nullptr;
}

SIZE_T GlobalSize(HGLOBAL block)
{
    const std::vector<BYTE>* bytes = blockOf(block);
    return bytes ? bytes->size() : 0;
}

HGLOBAL GlobalFree(HGLOBAL block)
{
    return blocks().erase(block) ? nullptr : block;
}

HRESULT CreateStreamOnHGlobal(HGLOBAL block, BOOL freeOnRelease, LPSTREAM* stream)
{
    if (!stream || !blockOf(block))
        return E_INVALIDARG;
    *stream = new MemoryStream(block, freeOnRelease != FALSE);
    return S_OK;
}
