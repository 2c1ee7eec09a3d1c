#pragma once

#include <windows.h>

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

    /// The id for the language of this moment. The language code is compared as a whole, so a code with a region behind
    /// the language gives `other`.
    UINT forCurrentLanguage() const;
};
