#pragma once

#include <string>
#include <vector>

/// True where the whole text is one e-mail address: word characters with at most one dot or underscore between them, an
/// at sign, and a host name of at least two words. Hyphens, plus signs and blanks fail.
bool isValidEmail(std::wstring const& address);

/// Cuts a text at its commas. A run of commas counts as one cut, no piece is empty, and blanks stay.
std::vector<std::wstring> splitAddresses(std::wstring const& text);
