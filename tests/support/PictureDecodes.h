#pragma once

namespace orvtest
{

/// How many picture files this program has decoded so far. The program links PictureDecodes.cpp, which stands before
/// the toolkit's function.
int pictureDecodes();

} // namespace orvtest
