#pragma once

#include <QImage>
#include <QPoint>

#include <string>

namespace orvtest
{

/// How far two pictures of a window differ. They are compared by squares of 4 by 4 pixels; a square counts where the
/// mean of a colour is more than 24 of 255 apart, so another rasteriser's letters pass and a text or a line that has
/// moved doesn't.
struct PictureDifference {
    double share = 1.0; ///< of all squares that count, 0 to 1; 1 where the sizes differ
    int worstPlace = 0; ///< squares that count in the worst place of 32 by 32 pixels, 0 to 64
    QPoint worst;       ///< its upper left corner, pixels

    bool isNone() const { return share == 0.0; }
    /// Small enough for another machine's fonts; a control that is missing or has moved is more, wherever it stands.
    bool isTolerable() const;
};
PictureDifference differenceOf(QImage const& one, QImage const& other);

/// Expects that a picture looks like the committed one of that name. A picture that doesn't is kept in the build's
/// folder pictures/pane/ beside the test's other results; with ORVANTA_WRITE_PICTURES set, it takes the committed one's
/// place instead, to be looked at before it is committed.
void expectLooksLike(QImage const& picture, std::string const& name);

} // namespace orvtest
