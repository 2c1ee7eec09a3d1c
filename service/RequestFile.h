#pragma once

#include <string>

/// Makes an empty file, in place of whatever is there, and closes it. That it can't be made isn't reported.
void createEmptyFile(std::wstring const& path);

/// Makes a request's own file, empty, in the user's directory of that name and gives its path. It stays behind and is
/// replaced by the next request of the same kind.
std::wstring createRequestFile(std::wstring const& directory, std::wstring const& name);
