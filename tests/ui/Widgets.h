#pragma once
// What a user sees of the plug-in's windows: the widgets below them.

#include "platform/qt/Native.h"
#include "platform/qt/Window.h"
#include "ui/ResourceModule.h"

#include <afxcontrolbars.h>

#include <QAbstractButton>
#include <QEvent>
#include <QImage>
#include <QWidget>

#include <utility>
#include <vector>

namespace orvtest
{

/// The windows of that class anywhere below `parent`, whether or not they lie in a group.
template <class Window>
std::vector<Window*> windowsBelow(CWnd& parent)
{
    std::vector<Window*> found;
    for (QWidget* widget : orvplatform::widgetOf(parent)->findChildren<QWidget*>()) {
        if (auto* window = dynamic_cast<Window*>(CWnd::FromHandlePermanent(orvplatform::existingHandle(widget)))) {
            found.push_back(window);
        }
    }
    return found;
}

/// How many of them aren't hidden.
template <class Window>
int shownBelow(CWnd& parent)
{
    int count = 0;
    for (Window* const window : windowsBelow<Window>(parent)) {
        count += (window->GetStyle() & WS_VISIBLE) != 0 ? 1 : 0;
    }
    return count;
}

/// The picture on a button, and one of the plug-in's resources, both empty where there is none.
inline QImage pictureOf(CWnd& dialog, int id)
{
    auto const* const button = qobject_cast<QAbstractButton*>(orvplatform::widgetOf(*dialog.GetDlgItem(id)));
    return button == nullptr ? QImage() : button->icon().pixmap(button->iconSize()).toImage();
}
inline QImage resourcePicture(UINT id)
{
    ResourceModule const module;
    CPngImage picture;
    return picture.Load(id) ? orvplatform::pixmapOf(static_cast<HBITMAP>(picture)).toImage() : QImage();
}

/// Counts the repaints of a window that is on show.
class PaintCount final : public QObject
{
public:
    explicit PaintCount(CWnd& window) { orvplatform::widgetOf(window)->installEventFilter(this); }
    int take() { return std::exchange(count, 0); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int count = 0;
};

} // namespace orvtest
