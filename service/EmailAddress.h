#pragma once

#include <string>
#include <vector>

/// True where the whole text is one e-mail address: word characters with at most one dot or underscore between them, an
/// at sign, and a host name of at least two words. Word characters are ASCII's letters, digits and the underscore;
/// hyphens, plus signs and blanks fail, and so does a text longer than any address that mail allows.
bool isValidEmail(std::wstring const& address);

/// Cuts a text at its commas. A run of commas counts as one cut, no piece is empty, and blanks stay.
std::vector<std::wstring> splitAddresses(std::wstring const& text);
