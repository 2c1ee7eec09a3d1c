#pragma once

#include <string>

/// Where the host layer keeps files.
namespace orvhost
{

/// The platform's own directory for the user's data of this program ($XDG_DATA_HOME/orvanta or ~/.local/share/orvanta),
/// without a closing separator. It isn't made here.
std::wstring platformDataDirectory();

/// The private temporary directory of this run, with a closing separator. It is made on the first call, mode 0700, and
/// removed with all it holds when the program ends.
std::wstring temporaryDirectory();

} // namespace orvhost
