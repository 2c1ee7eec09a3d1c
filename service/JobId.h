#pragma once

#include "platform/text/Text.h"

#include <string>

/// Lengths, in 16-bit characters, by which the service's answers are told apart; their content is never looked at.
inline constexpr std::size_t identityLength = 36;

/// A job id has 36 characters or more; a shorter answer means that there is none.
inline bool isJobId(std::wstring const& answer)
{
    return orvtext::utf16Length(answer) >= identityLength;
}

/// A login token has exactly 36 characters.
inline bool isLoginToken(std::wstring const& answer)
{
    return orvtext::utf16Length(answer) == identityLength;
}
