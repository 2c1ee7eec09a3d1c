#pragma once

#include "host/orvgl/Camera.h"
#include "viewer/scene/SceneDisplay.h"

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

namespace orvviewer
{

/// The window that the model is drawn in, and the hands on it. Left button: select, rotate when dragged; middle button
/// or Shift: pan; Ctrl or wheel: zoom; right button: menu, pan when dragged. Arrow keys rotate, with Ctrl they pan.
class ModelView : public QWidget
{
    Q_OBJECT

public:
    explicit ModelView(QWidget* parent = nullptr);
    ~ModelView() override;

    /// Null while nothing can be drawn; the view then shows a sentence instead.
    void setDisplay(std::shared_ptr<SceneDisplay> display);
    /// The camera record that the hands move; null without a document.
    void setCamera(std::shared_ptr<orvgl::Camera> camera);
    void redrawNow();
    int frames() const; ///< drawn so far, for tests and measurements
    double aspect() const;

signals:
    void picked(int node, bool extend);            ///< a click; -1 beside the model
    void opened(int node);                         ///< a double click on a part
    void sideChosen(double x, double y, double z); ///< on the view cube: direction from the target to the eye
    void cameraMoved();                            ///< by hand; at the end of a motion
    void menuRequested(QPoint const& globalPosition, int node);
    void filesDropped(QStringList const& paths);

protected:
    QPaintEngine* paintEngine() const override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Motion { none, rotate, pan, zoom };

    bool canDraw() const;
    void attach();
    void detach();
    void drag(Motion kind, QPoint const& from, QPoint const& to);
    void applyMotion();
    void endMotion();

    std::shared_ptr<SceneDisplay> display;
    std::shared_ptr<orvgl::Camera> camera;
    bool isAttached = false;
    Motion motion = Motion::none;
    bool hasMoved = false;
    QPoint pressedAt;
    QPoint lastAt;
    QTimer settle; ///< runs out when the wheel or a key has come to rest
};

} // namespace orvviewer
