#include "tour/ReviewView.h"

#include "tour/Driver.h"
#include "tour/SceneState.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"

namespace orvtour
{

namespace
{
constexpr unsigned long signalOrange = 0x1A7FF2; // packed: red in the low byte
} // namespace

bool arrangeReviewView(Driver& driver)
{
    auto const parts = partNodes(driver.document());
    if (parts.size() < 6) {
        return false;
    }
    auto& context = driver.context();
    std::size_t const last = parts.size() - 1;
    orvviewer::hideNodes(context, {parts[0], parts[last / 2]});
    orvviewer::colourNodes(context, {parts[1]}, signalOrange);
    orvviewer::makeTransparent(context, {parts[2]}, 0.5F);
    orvviewer::moveNodes(context, {parts[last]}, 12.5, -7.25, 30.1);
    orvviewer::lookAlong(context, 0.83, -0.41, 0.37);
    orvviewer::zoomView(context, 0.8);
    return true;
}

void resetView(Driver& driver)
{
    orvviewer::resetNodes(driver.context());
    orvviewer::lookFromSide(driver.context(), orvviewer::StandardView::isometric);
    orvviewer::fitView(driver.context());
}

} // namespace orvtour
