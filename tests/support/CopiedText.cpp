#include "support/CopiedText.h"

#include <cstring>
#include <cwchar>

namespace
{

std::size_t total = 0;

}

extern "C" wchar_t* wmemcpy(wchar_t* target, wchar_t const* source, std::size_t count) noexcept
{
    total += count;
    return static_cast<wchar_t*>(std::memcpy(target, source, count * sizeof(wchar_t)));
}

namespace orvtest
{

std::size_t copiedText()
{
    return total;
}

} // namespace orvtest
