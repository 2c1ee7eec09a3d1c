#pragma once

#include <QString>

#include <string>
#include <vector>

namespace orvviewer
{

/// A language of the viewer.
struct Language {
    std::wstring code;    ///< two letters, as in `--language`
    std::wstring ownName; ///< as its speakers write it
};

/// English first, then the seven others.
std::vector<Language> const& languages();

/// The language of a run: the one that was asked for on the command line, else the one set in the options, else the
/// system's. Both may be empty; a code that isn't among the eight counts as English.
std::wstring chooseLanguage(std::wstring const& asked, std::wstring const& preferred);

/// Gives the viewer's texts and numbers in the language from now on; windows that stand keep theirs. English has plural
/// forms alone.
void useViewerLanguage(std::wstring const& code);

/// A text of the viewer in its language; where the translation lacks it, as it is.
QString localized(char const* text);

/// A whole English sentence in the viewer's language. At most two names stand in it between
/// quotation marks, which they may hold themselves, and as "%1" and "%2" in
/// the translations. A sentence that isn't known stays as it is.
std::wstring localizedSentence(std::wstring const& sentence);

} // namespace orvviewer
