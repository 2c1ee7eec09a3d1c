#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>

class QSplitter;
class QStackedWidget;

namespace orvviewer
{

class ModelTree;
class ModelView;
class StartPage;
class StatusLine;

/// The frame: model tree at the left, view in the middle, side bar at the right, status line below. Ribbon and side bar
/// are put in by their makers.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    ModelTree& tree() { return *modelTree; }
    ModelView& view() { return *modelView; }
    StatusLine& status() { return *statusLine; }
    StartPage& startPage() { return *start; }

    /// Shows it for the first time: at its own size, or maximised where the screen has no room for that and a title
    /// bar.
    void showOnScreen();
    void setRibbon(QWidget* ribbon);
    /// Takes the side bar in; it shows at its width of 320 pixels, or as a strip where it is folded.
    void setSideBar(QWidget* bar);
    void showSideBar(bool shown);
    bool isSideBarShown() const;
    void showTree(bool shown);
    bool isTreeShown() const;
    /// Shows the view with a model's file name in the title, or the start page where the name is empty.
    void showModel(QString const& fileName);

    /// While it holds, the user can do nothing here but press Escape, which calls `stop`.
    void block(std::function<void()> stop);
    void unblock();

signals:
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void followSideBar();

    QSplitter* splitter;
    QStackedWidget* middle; ///< the start page or the view
    StartPage* start;
    ModelTree* modelTree;
    ModelView* modelView;
    StatusLine* statusLine;
    QWidget* sideBar = nullptr;
    std::function<void()> stopWork; ///< set while input is blocked
};

} // namespace orvviewer
