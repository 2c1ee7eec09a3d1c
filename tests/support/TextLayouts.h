#pragma once

namespace orvtest
{

/// How many texts this program has measured in a box so far, and how many lines it has laid out itself. The program
/// links TextLayouts.cpp, which stands before the toolkit's functions.
int measuredTexts();
int laidOutLines();

} // namespace orvtest
