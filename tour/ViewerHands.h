#pragma once

#include <QPoint>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace orvviewer
{
class MainWindow;
}

namespace orvtour
{

/// A user's hands on the viewer's own windows: mouse and keys on the tree, the ribbon, its menus, the move panel and
/// the view. False says that a user could not have done it.
class ViewerHands
{
public:
    explicit ViewerHands(orvviewer::MainWindow& window) : main(window) {}

    /// Clicks on the nodes in the model tree, with Ctrl from the second on, after opening what is above them.
    bool select(std::vector<int> const& nodes);
    /// Presses a ribbon button, by its command number.
    bool press(unsigned int command);
    /// Opens the menu of a ribbon button and takes the entry of that text (without its "&").
    bool choose(unsigned int command, QString const& entry);
    /// Turns the three boxes of the move panel to these offsets, millimetres, and closes it.
    bool setOffsets(double x, double y, double z);
    /// Drags with the left button from the middle of the view: turns the camera.
    bool dragView(QPoint const& by);
    /// Turns the wheel over the view; steps above zero come nearer.
    bool turnWheel(int steps);

private:
    bool untilAtRest(std::function<void(QWidget& view)> const& motion);

    orvviewer::MainWindow& main;
};

} // namespace orvtour
