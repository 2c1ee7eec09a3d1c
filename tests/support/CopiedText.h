#pragma once

#include <cstddef>

namespace orvtest
{

/// How many characters of wide texts this program has copied so far. The program links CopiedText.cpp, which stands
/// before the function by which wide strings copy; memory that is asked for wouldn't do, as a copy into a text that is
/// long enough asks for none.
std::size_t copiedText();

} // namespace orvtest
