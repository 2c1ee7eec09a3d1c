#pragma once

#include <locale>

/// The locale of the session file's streams: one byte a character, U+0000 to U+00FF; anything above is an error.
std::locale byteLocale();
