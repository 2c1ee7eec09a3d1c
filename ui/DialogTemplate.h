#pragma once

#include <windows.h>

#include <string_view>

/// The template ids of one dialog, one a language.
struct DialogTemplate {
    UINT other; ///< English, and any language that isn't listed
    UINT french;
    UINT german;
    UINT japanese;
    UINT korean;
    UINT chinese;
    UINT spanish;
    UINT portuguese;

    /// The id for a language code. It is compared as a whole, letter case included, so a code with a region behind the
    /// language gives `other`.
    UINT forLanguage(std::wstring_view code) const;
    /// The id for the language of this moment.
    UINT forCurrentLanguage() const;
};
