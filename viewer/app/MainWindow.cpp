#include "viewer/app/MainWindow.h"

#include "platform/qt/Look.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/StartPage.h"
#include "viewer/app/StatusLine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

namespace orvviewer
{

namespace
{

using orvplatform::scaled;

// At the plain resolution.
constexpr int usualWidth = 1440;
constexpr int usualHeight = 900;
constexpr int titleBar = 32; ///< a good guess: the system's own isn't there before the window is
constexpr int treeWidth = 272;
constexpr int narrowestPart = 160; ///< of tree and view
constexpr int foldedLimit = 120;   ///< a side bar that asks for less is folded to its strip

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

MainWindow::MainWindow()
    : splitter(new QSplitter(Qt::Horizontal, this)), middle(new QStackedWidget), start(new StartPage),
      modelTree(new ModelTree), modelView(new ModelView), statusLine(new StatusLine)
{
    setWindowIcon(QIcon(":/icons/orvanta.svg"));
    splitter->addWidget(modelTree);
    middle->addWidget(start);
    middle->addWidget(modelView);
    splitter->addWidget(middle);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setHandleWidth(1);
    splitter->setChildrenCollapsible(false);
    modelTree->setMinimumWidth(scaled(narrowestPart));
    setCentralWidget(splitter);
    setStatusBar(statusLine);
    setAcceptDrops(true);
    resize(scaled(usualWidth), scaled(usualHeight));
    splitter->setSizes({scaled(treeWidth), width() - scaled(treeWidth)});
    showModel({});
}

MainWindow::~MainWindow() = default;

void MainWindow::showOnScreen()
{
    QSize const room = screen()->availableSize() - QSize(0, scaled(titleBar));
    if (size().boundedTo(room) == size()) {
        show();
        return;
    }
    resize(size().boundedTo(room)); // what it goes back to
    showMaximized();
}

void MainWindow::setRibbon(QWidget* ribbon)
{
    setMenuWidget(ribbon);
}

void MainWindow::setSideBar(QWidget* bar)
{
    sideBar = bar;
    splitter->addWidget(bar);
    splitter->setStretchFactor(2, 0);
    bar->installEventFilter(this);
    followSideBar();
}

void MainWindow::followSideBar()
{
    int const wanted = sideBar->sizeHint().width();
    bool const isFolded = wanted > 0 && wanted < scaled(foldedLimit);
    sideBar->setMinimumWidth(isFolded ? wanted : orvplatform::sideBarWidth());
    sideBar->setMaximumWidth(isFolded ? wanted : 2 * orvplatform::sideBarWidth());
    int const bar = isFolded ? wanted : orvplatform::sideBarWidth();
    // Before the window is shown sizes say nothing yet.
    int const left = modelTree->isHidden() ? 0 : isVisible() ? modelTree->width() : scaled(treeWidth);
    splitter->setSizes(
        {left, std::max((isVisible() ? splitter->width() : width()) - left - bar, scaled(narrowestPart)), bar});
}

void MainWindow::showSideBar(bool shown)
{
    if (sideBar != nullptr) {
        sideBar->setVisible(shown);
    }
}

bool MainWindow::isSideBarShown() const
{
    return sideBar != nullptr && !sideBar->isHidden();
}

void MainWindow::showTree(bool shown)
{
    modelTree->setVisible(shown);
}

bool MainWindow::isTreeShown() const
{
    return !modelTree->isHidden();
}

void MainWindow::showModel(QString const& fileName)
{
    setWindowTitle(fileName.isEmpty() ? QStringLiteral("Orvanta") : fileName + " - Orvanta");
    middle->setCurrentWidget(fileName.isEmpty() ? static_cast<QWidget*>(start) : modelView);
}

void MainWindow::block(std::function<void()> stop)
{
    stopWork = std::move(stop);
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::BusyCursor);
}

void MainWindow::unblock()
{
    QApplication::restoreOverrideCursor();
    qApp->removeEventFilter(this);
    stopWork = nullptr;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (stopWork) {
        stopWork();
        event->ignore();
        return;
    }
    emit closing();
    QMainWindow::closeEvent(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (stopWork && isInput(event->type())) {
        // The override comes first and would be lost to a command on the same key, such as "Select nothing".
        bool const isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
        if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            event->accept();
            stopWork();
        }
        return true;
    }
    if (watched == sideBar && event->type() == QEvent::LayoutRequest) {
        followSideBar();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (auto const& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            paths << url.toLocalFile();
        }
    }
    event->acceptProposedAction();
    emit modelView->filesDropped(paths);
}

} // namespace orvviewer
