#pragma once
// What the tabs of the side bar draw themselves: the pictures of their buttons and the edge of slid-out panes.

#include <QIcon>
#include <QWidget>

#include <functional>

namespace orvplatform
{
// In the colour of quiet text.
QIcon floatIcon();
QIcon pinIcon(bool pinned);

QSize sizeOf(const QIcon& icon); // of the largest picture in it, pixels; nothing for no picture

// Is drawn to make slid-out panes wider or narrower. Tells where the pointer is: x on the screen, pixels.
class Edge final : public QWidget
{
public:
    Edge(QWidget* parent, std::function<void(int)> drag);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void(int)> dragged;
};
} // namespace orvplatform
