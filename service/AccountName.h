#pragma once

#include <string>

/// Reads the account's display name from the answer of accountInfo, one character a byte. False where the answer is no
/// JSON object or its name has no text form, as a list hasn't: `name` stays then. An object without a name gives an
/// empty one. Never throws for an answer.
bool readAccountName(std::wstring const& response, std::wstring& name);
