#pragma once

#include <QImage>

#include <string>

namespace orvtest
{

/// How far two pictures of a window differ, as a share (0 to 1) of its squares of 4 by 4 pixels: 1 where the sizes
/// differ. A square counts where the mean of a colour is more than 24 of 255 apart, so another rasteriser's letters
/// pass and a text or a line that has moved doesn't.
double differenceOf(QImage const& one, QImage const& other);

/// Expects that a picture looks like the committed one of that name. A picture that doesn't is kept in the build's
/// folder pictures/pane/ beside the test's other results; with ORVANTA_WRITE_PICTURES set, it takes the committed one's
/// place instead, to be looked at before it is committed.
void expectLooksLike(QImage const& picture, std::string const& name);

} // namespace orvtest
