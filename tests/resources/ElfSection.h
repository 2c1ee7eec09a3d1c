#pragma once
// Sections of a 64-bit ELF library, for tests alone. Throws std::runtime_error where the file ends early.

#include "resources/ResFile.h"

#include <optional>

namespace restest
{

// Empty where the library has no section of that name.
std::optional<Bytes> sectionOf(const Bytes& library, const std::string& name);

} // namespace restest
