#pragma once

#include <string>

/// Reads the account's display name from the answer of accountInfo, one character a byte. False where the answer isn't
/// JSON: `name` stays then. Throws the JSON library's exceptions where a value is of the wrong kind.
bool readAccountName(std::wstring const& response, std::wstring& name);
