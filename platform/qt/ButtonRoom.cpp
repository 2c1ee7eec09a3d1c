#include "platform/qt/ButtonRoom.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/UnmadeControl.h"

#include <QFontMetrics>
#include <QPushButton>

#include <algorithm>

namespace orvplatform
{
namespace
{
QRect shortenedTo(QRect place, int height, HWND button)
{
    if (place.bottom() < height || place.top() >= height)
        return place;
    const QFont font = button->font ? button->font->font : dialogFont();
    place.setHeight(std::min(std::max(height - place.top(), QFontMetrics(font).height()), place.height()));
    return place;
}
} // namespace

void ButtonRoom::fit(HWND window, int height)
{
    if (!isLive(window))
        return;
    const std::vector<HWND> unmade = window->unmadeControls;
    for (HWND control : unmade)
        if (controlKind(control) == ControlKind::Button)
            fitButton(control, height);
    const QObjectList made = window->widget()->children();
    for (QObject* child : made)
        if (const auto* button = qobject_cast<const QPushButton*>(child))
            if (HWND control = existingHandle(button))
                fitButton(control, height);
}

void ButtonRoom::fitButton(HWND button, int height)
{
    const QRect place = placeInParent(button);
    auto known = std::find_if(lowered.begin(), lowered.end(), [=](const auto& each) { return each.button == button; });
    if (known == lowered.end() && place.bottom() < height)
        return;
    const bool isOurs = known != lowered.end() && known->shortened == place;
    const QRect whole = isOurs ? known->whole : place;
    const QRect fitted = shortenedTo(whole, height, button);
    if (known != lowered.end())
        lowered.erase(known);
    if (fitted != whole)
        lowered.push_back({button, whole, fitted});
    std::erase_if(lowered, [](const auto& each) { return each.button.isNull(); });
    if (fitted != place)
        SetWindowPos(button, nullptr, fitted.x(), fitted.y(), fitted.width(), fitted.height(), SWP_NOZORDER);
}
} // namespace orvplatform
