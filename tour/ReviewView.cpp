#include "tour/ReviewView.h"

#include "tour/Driver.h"
#include "tour/SceneState.h"
#include "tour/ViewerHands.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/commands/CommandId.h"

namespace orvtour
{

bool arrangeReviewView(Driver& driver)
{
    auto const parts = partNodes(driver.document());
    if (parts.size() < 6) {
        return false;
    }
    ViewerHands hands(driver.session().window());
    std::size_t const last = parts.size() - 1;
    bool const hidden = hands.select({parts[0], parts[last / 2]}) && hands.press(orvviewer::hideParts);
    bool const coloured = hidden && hands.select({parts[1]}) && hands.choose(orvviewer::colourParts, "Orange");
    bool const clear = coloured && hands.select({parts[2]}) && hands.choose(orvviewer::transparentParts, "50 %");
    bool const moved = clear && hands.select({parts[last]}) && hands.press(orvviewer::moveParts) &&
                       hands.setOffsets(12.5, -7.25, 30.1);
    // The selection lights up; it goes before the picture is taken.
    return moved && hands.dragView({-90, 40}) && hands.turnWheel(2) &&
           driver.session().runCommand(orvviewer::selectNoParts);
}

bool resetView(Driver& driver)
{
    ViewerHands hands(driver.session().window());
    return hands.press(orvviewer::resetParts) && hands.press(orvviewer::viewIsometric) &&
           hands.press(orvviewer::fitAll);
}

} // namespace orvtour
