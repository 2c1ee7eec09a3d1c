#include "viewer/app/ModelView.h"

#include "platform/qt/Look.h"
#include "viewer/scene/CameraMotion.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <numbers>

namespace orvviewer
{

namespace
{

constexpr double turnOfWholeHeight = std::numbers::pi; ///< radians that a drag over the view's height turns
constexpr double keyTurn = std::numbers::pi / 36.0;
constexpr double keyPan = 0.05;
constexpr double keyZoom = 1.15;
constexpr double wheelZoom = 1.0015; ///< for each of a wheel's 120 units a notch
constexpr int settleTime = 150;      ///< milliseconds

} // namespace

ModelView::ModelView(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setMinimumSize(160, 120);
    setAccessibleName(tr("Model view"));
    settle.setSingleShot(true);
    settle.setInterval(settleTime);
    connect(&settle, &QTimer::timeout, this, [this] {
        if (isAttached) {
            display->setMoving(false);
        }
        emit cameraMoved();
    });
}

ModelView::~ModelView()
{
    setDisplay(nullptr);
}

bool ModelView::canDraw() const
{
    return display != nullptr && QGuiApplication::platformName() == "xcb";
}

void ModelView::setDisplay(std::shared_ptr<SceneDisplay> next)
{
    detach();
    display = std::move(next);
    bool const drawsItself = canDraw();
    setAttribute(Qt::WA_NativeWindow, drawsItself);
    setAttribute(Qt::WA_PaintOnScreen, drawsItself);
    setAttribute(Qt::WA_NoSystemBackground, drawsItself);
    setAttribute(Qt::WA_OpaquePaintEvent, drawsItself);
    if (isVisible()) {
        attach();
    }
}

void ModelView::setCamera(std::shared_ptr<orvgl::Camera> next)
{
    camera = std::move(next);
    update();
}

void ModelView::attach()
{
    if (canDraw() && !isAttached) {
        display->attachWindow(static_cast<unsigned long>(winId()));
        display->setDark(orvplatform::theme().dark);
        isAttached = true;
    }
}

void ModelView::detach()
{
    if (isAttached) {
        display->detachWindow();
        isAttached = false;
    }
}

double ModelView::aspect() const
{
    return height() > 0 ? static_cast<double>(width()) / height() : 1.0;
}

void ModelView::redrawNow()
{
    if (isAttached) {
        display->redraw();
    } else {
        update();
    }
}

int ModelView::frames() const
{
    return display ? display->screenFrames() : 0;
}

QPaintEngine* ModelView::paintEngine() const
{
    return canDraw() ? nullptr : QWidget::paintEngine();
}

void ModelView::paintEvent(QPaintEvent*)
{
    if (isAttached) {
        display->redraw();
        return;
    }
    auto const& theme = orvplatform::theme();
    QPainter painter(this);
    painter.fillRect(rect(), theme.window);
    painter.setPen(theme.mutedText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("The model can't be drawn: there is no display with OpenGL."));
}

void ModelView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isAttached) {
        display->redraw();
    }
}

void ModelView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    attach();
}

void ModelView::hideEvent(QHideEvent* event)
{
    // The toolkit may destroy the native window of what it hides. Nothing must be drawn in it from now on.
    if (!event->spontaneous()) {
        detach();
    }
    QWidget::hideEvent(event);
}

bool ModelView::event(QEvent* event)
{
    // A new native window, as after re-parenting, needs a new view.
    if (event->type() == QEvent::WinIdChange && isAttached) {
        detach();
        attach();
    } else if (event->type() == QEvent::PaletteChange && isAttached) {
        display->setDark(orvplatform::theme().dark);
        update();
    }
    return QWidget::event(event);
}

void ModelView::drag(Motion kind, QPoint const& from, QPoint const& to)
{
    if (!camera || height() == 0) {
        return;
    }
    double const right = static_cast<double>(to.x() - from.x()) / height();
    double const upwards = static_cast<double>(from.y() - to.y()) / height();
    switch (kind) {
    case Motion::rotate:
        orbit(*camera, right * turnOfWholeHeight, upwards * turnOfWholeHeight);
        break;
    case Motion::pan:
        pan(*camera, right, upwards);
        break;
    case Motion::zoom:
        zoom(*camera, std::pow(4.0, -upwards));
        break;
    case Motion::none:
        return;
    }
    applyMotion();
}

void ModelView::applyMotion()
{
    if (isAttached) {
        display->setMoving(true);
        display->applyCamera();
        display->redraw();
    }
}

void ModelView::mousePressEvent(QMouseEvent* event)
{
    pressedAt = lastAt = event->position().toPoint();
    hasMoved = false;
    bool const shift = event->modifiers().testFlag(Qt::ShiftModifier);
    bool const control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->button()) {
    case Qt::LeftButton:
        motion = shift ? Motion::pan : control ? Motion::zoom : Motion::rotate;
        break;
    case Qt::MiddleButton:
    case Qt::RightButton:
        motion = Motion::pan;
        break;
    default:
        motion = Motion::none;
        break;
    }
}

void ModelView::mouseMoveEvent(QMouseEvent* event)
{
    QPoint const at = event->position().toPoint();
    if (event->buttons() == Qt::NoButton || motion == Motion::none) {
        if (isAttached) {
            auto const under = display->hover(at.x(), at.y());
            setCursor(under.node >= 0 || under.viewFrom ? Qt::PointingHandCursor : Qt::ArrowCursor);
        }
        return;
    }
    if (!hasMoved && (at - pressedAt).manhattanLength() < 4) {
        return;
    }
    if (!hasMoved) {
        hasMoved = true;
        setCursor(motion == Motion::pan ? Qt::SizeAllCursor : Qt::ClosedHandCursor);
        if (isAttached) {
            display->leave();
        }
    }
    drag(motion, lastAt, at);
    lastAt = at;
}

void ModelView::endMotion()
{
    motion = Motion::none;
    unsetCursor();
    if (isAttached) {
        display->setMoving(false);
    }
    if (hasMoved && camera) {
        emit cameraMoved();
    }
}

void ModelView::mouseReleaseEvent(QMouseEvent* event)
{
    if (motion == Motion::none) {
        return;
    }
    bool const isClick = !hasMoved && event->button() == Qt::LeftButton;
    endMotion();
    if (!isClick) {
        return;
    }
    auto const at = event->position().toPoint();
    auto const under = isAttached ? display->hover(at.x(), at.y()) : PickResult();
    if (under.viewFrom) {
        emit sideChosen((*under.viewFrom)[0], (*under.viewFrom)[1], (*under.viewFrom)[2]);
    } else {
        auto const extend = event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
        emit picked(under.node, extend != Qt::NoModifier);
    }
}

void ModelView::mouseDoubleClickEvent(QMouseEvent* event)
{
    auto const at = event->position().toPoint();
    auto const under = isAttached ? display->hover(at.x(), at.y()) : PickResult();
    motion = Motion::none;
    if (event->button() == Qt::LeftButton && !under.viewFrom) {
        emit opened(under.node);
    }
}

void ModelView::leaveEvent(QEvent* event)
{
    if (isAttached && motion == Motion::none) {
        display->leave();
    }
    QWidget::leaveEvent(event);
}

void ModelView::wheelEvent(QWheelEvent* event)
{
    if (!camera || height() == 0) {
        return;
    }
    double const x = (event->position().x() - width() / 2.0) / height();
    double const y = (height() / 2.0 - event->position().y()) / height();
    zoom(*camera, std::pow(wheelZoom, -event->angleDelta().y()), x, y);
    applyMotion();
    settle.start();
}

void ModelView::keyPressEvent(QKeyEvent* event)
{
    bool const pans = event->modifiers().testFlag(Qt::ControlModifier);
    double right = 0.0;
    double upwards = 0.0;
    double factor = 1.0;
    switch (event->key()) {
    case Qt::Key_Left:
        right = -1.0;
        break;
    case Qt::Key_Right:
        right = 1.0;
        break;
    case Qt::Key_Up:
        upwards = 1.0;
        break;
    case Qt::Key_Down:
        upwards = -1.0;
        break;
    case Qt::Key_Plus:
        factor = 1.0 / keyZoom;
        break;
    case Qt::Key_Minus:
        factor = keyZoom;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (!camera) {
        return;
    }
    if (factor != 1.0) {
        zoom(*camera, factor);
    } else if (pans) {
        pan(*camera, right * keyPan, upwards * keyPan);
    } else {
        orbit(*camera, right * keyTurn, upwards * keyTurn);
    }
    applyMotion();
    settle.start();
}

void ModelView::contextMenuEvent(QContextMenuEvent* event)
{
    if (hasMoved && event->reason() == QContextMenuEvent::Mouse) {
        return;
    }
    motion = Motion::none;
    auto const under = isAttached && event->reason() == QContextMenuEvent::Mouse
                           ? display->hover(event->x(), event->y())
                           : PickResult();
    emit menuRequested(event->globalPos(), under.node);
}

void ModelView::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void ModelView::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (auto const& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            paths << url.toLocalFile();
        }
    }
    event->acceptProposedAction();
    emit filesDropped(paths);
}

} // namespace orvviewer
