#pragma once

#include <cstdint>
#include <string>

/// The languages and image sizes of a run.
namespace orvhost
{

/// The two-letter code that stands for a wish such as "de", "DE" or "de_AT"; "en" for a language without texts.
std::wstring languageCode(std::wstring const& wish);
/// The resource language of a code of languageCode, e.g. 1031 for "de".
std::uint16_t resourceLanguage(std::wstring const& code);

/// Resources of all modules are looked up in this language from here on.
void useLanguage(std::wstring const& code);
/// Sets ResourceLoader's resolution and image sizes; dots an inch.
void useResolution(double dpi);

} // namespace orvhost
