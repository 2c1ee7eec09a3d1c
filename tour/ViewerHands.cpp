#include "tour/ViewerHands.h"

#include "platform/qt/Native.h"
#include "platform/testing/Input.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/MovePanel.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QWheelEvent>

#include <functional>

namespace orvtour
{

namespace input = orvplatform::testing;

namespace
{

void sendMouse(QWidget& widget, QEvent::Type type, QPoint const& at, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers keys = Qt::NoModifier)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, buttons, keys);
    QApplication::sendEvent(&widget, &event);
}

void click(QWidget& widget, QPoint const& at, Qt::KeyboardModifiers keys)
{
    sendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, keys);
    sendMouse(widget, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, keys);
}

/// The entry of that text, without its "&"; null where it isn't there or isn't enabled.
QAction* entryOf(QMenu const& menu, QString const& text)
{
    for (QAction* const action : menu.actions()) {
        if (action->isEnabled() && action->text().remove('&') == text) {
            return action;
        }
    }
    return nullptr;
}

/// The item of a node in the tree as it is shown; invalid without one.
QModelIndex itemOf(QAbstractItemModel const& shown, int node, QModelIndex const& parent = {})
{
    auto const* const proxy = qobject_cast<QAbstractProxyModel const*>(&shown);
    for (int row = 0; row < shown.rowCount(parent); ++row) {
        QModelIndex const index = shown.index(row, 0, parent);
        if (orvviewer::NodeItems::nodeOf(proxy != nullptr ? proxy->mapToSource(index) : index) == node) {
            return index;
        }
        QModelIndex const below = itemOf(shown, node, index);
        if (below.isValid()) {
            return below;
        }
    }
    return {};
}

} // namespace

bool ViewerHands::select(std::vector<int> const& nodes)
{
    auto* const tree = main.tree().findChild<QTreeView*>();
    if (tree == nullptr) {
        return false;
    }
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    for (int const node : nodes) {
        QModelIndex const index = itemOf(*tree->model(), node);
        if (!index.isValid()) {
            return false;
        }
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
            tree->expand(above);
        }
        tree->scrollTo(index);
        input::processEvents();
        // Beside the check box and the picture, on the name.
        QRect const place = tree->visualRect(index);
        click(*tree->viewport(), QPoint(place.right() - 4, place.center().y()), keys);
        keys = Qt::ControlModifier;
    }
    input::processEvents();
    return true;
}

bool ViewerHands::press(unsigned int command)
{
    input::processEvents();
    CWnd* const ribbon = orvplatform::windowOf(main.menuWidget());
    bool const ready =
        ribbon != nullptr && input::waitFor([&] { return input::isRibbonEnabled(*ribbon, command); }, 5000);
    bool const pressed = ready && input::clickRibbon(*ribbon, command);
    input::processEvents();
    return pressed;
}

bool ViewerHands::choose(unsigned int command, QString const& entry)
{
    CWnd* const ribbon = orvplatform::windowOf(main.menuWidget());
    if (ribbon == nullptr || !input::waitFor([&] { return input::isRibbonEnabled(*ribbon, command); }, 5000)) {
        return false;
    }
    for (QToolButton* const button : main.menuWidget()->findChildren<QToolButton*>()) {
        QAction* const action =
            button->isVisible() && button->menu() != nullptr ? entryOf(*button->menu(), entry) : nullptr;
        if (action == nullptr) {
            continue;
        }
        // The menu runs an event loop of its own while it is open; the choice is made in there.
        bool chosen = false;
        QTimer hand;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            if (button->menu()->isVisible()) {
                hand.stop();
                chosen = true;
                click(*button->menu(), button->menu()->actionGeometry(action).center(), Qt::NoModifier);
            }
        });
        hand.start(10);
        sendMouse(*button, QEvent::MouseButtonPress, button->rect().center(), Qt::LeftButton, Qt::LeftButton);
        bool const done = input::waitFor([&] { return chosen && !button->menu()->isVisible(); }, 2000);
        sendMouse(*button, QEvent::MouseButtonRelease, QPoint(-1, -1), Qt::LeftButton, Qt::NoButton);
        return done;
    }
    return false;
}

bool ViewerHands::setOffsets(double x, double y, double z)
{
    auto* const panel = main.findChild<orvviewer::MovePanel*>();
    if (panel == nullptr || !panel->isVisible()) {
        return false;
    }
    auto const boxes = panel->findChildren<QDoubleSpinBox*>();
    double const offsets[] = {x, y, z};
    if (boxes.size() != 3) {
        return false;
    }
    for (int axis = 0; axis < 3; ++axis) {
        boxes[axis]->setValue(offsets[axis]);
    }
    panel->close();
    input::processEvents();
    return true;
}

bool ViewerHands::dragView(QPoint const& by)
{
    return untilAtRest([&](QWidget& view) {
        QPoint const from = view.rect().center();
        constexpr int steps = 8;
        sendMouse(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        for (int step = 1; step <= steps; ++step) {
            sendMouse(view, QEvent::MouseMove, from + by * step / steps, Qt::NoButton, Qt::LeftButton);
        }
        sendMouse(view, QEvent::MouseButtonRelease, from + by, Qt::LeftButton, Qt::NoButton);
    });
}

bool ViewerHands::turnWheel(int steps)
{
    return untilAtRest([steps](QWidget& view) {
        QPoint const at = view.rect().center();
        QWheelEvent event(at, view.mapToGlobal(at), QPoint(), QPoint(0, 120 * steps), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    });
}

/// Does a motion and waits for its end: until then the view is drawn coarsely.
bool ViewerHands::untilAtRest(std::function<void(QWidget& view)> const& motion)
{
    bool atRest = false;
    auto const connection =
        QObject::connect(&main.view(), &orvviewer::ModelView::cameraMoved, [&atRest] { atRest = true; });
    motion(main.view());
    bool const came = input::waitFor([&atRest] { return atRest; }, 5000);
    QObject::disconnect(connection);
    input::processEvents();
    return came;
}

} // namespace orvtour
