#include "ui/account/ByteCodecvt.h"

#include <algorithm>
#include <cwchar>

namespace
{

class ByteCodecvt final : public std::codecvt<wchar_t, char, std::mbstate_t>
{
protected:
    result do_out(std::mbstate_t& /*state*/, wchar_t const* from, wchar_t const* fromEnd, wchar_t const*& fromNext,
                  char* to, char* toEnd, char*& toNext) const override
    {
        for (; from != fromEnd && to != toEnd; ++from, ++to) {
            if (static_cast<unsigned long>(*from) > 0xFFUL) {
                fromNext = from;
                toNext = to;
                return error;
            }
            *to = static_cast<char>(*from);
        }
        fromNext = from;
        toNext = to;
        return from == fromEnd ? ok : partial;
    }

    result do_in(std::mbstate_t& /*state*/, char const* from, char const* fromEnd, char const*& fromNext, wchar_t* to,
                 wchar_t* toEnd, wchar_t*& toNext) const override
    {
        for (; from != fromEnd && to != toEnd; ++from, ++to) {
            *to = static_cast<wchar_t>(static_cast<unsigned char>(*from));
        }
        fromNext = from;
        toNext = to;
        return from == fromEnd ? ok : partial;
    }

    result do_unshift(std::mbstate_t& /*state*/, char* to, char* /*toEnd*/, char*& toNext) const override
    {
        toNext = to;
        return noconv;
    }

    int do_encoding() const noexcept override { return 1; }
    bool do_always_noconv() const noexcept override { return false; }
    int do_max_length() const noexcept override { return 1; }

    int do_length(std::mbstate_t& /*state*/, char const* from, char const* end, std::size_t max) const override
    {
        return static_cast<int>(std::min(static_cast<std::size_t>(end - from), max));
    }
};

} // namespace

// The locale owns the facet.
std::locale byteLocale()
{
    return std::locale(std::locale::classic(), new ByteCodecvt);
}
