#pragma once
// The side bar's tabs over a stack of panes. Pinned, the panes fill the bar. Unpinned, a strip of icons stands there,
// and the panes slide out over what is beside it for as long as they are used.

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QIcon;
class QLabel;
class QStackedWidget;
class QTabBar;
class QToolButton;
QT_END_NAMESPACE

namespace orvplatform
{
class PaneTabs;

// The window between a tab and its control. The control fills it.
class PaneFrame final : public QWidget
{
public:
    PaneFrame(PaneTabs& owner, QWidget* parent) : QWidget(parent), tabs(owner) {}
    PaneTabs& tabs;
    QPointer<QWidget> control;
    bool canFloat = true;
    bool canFold = true;
    bool canResize = true;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

class PaneTabs final : public QWidget
{
public:
    explicit PaneTabs(QWidget* parent);
    ~PaneTabs() override;

    struct Pane {
        QPointer<PaneFrame> frame;
        QWidget* page;       // holds the frame while it is docked
        QLabel* note;        // stands in for it otherwise
        QToolButton* opener; // in the strip
    };
    Pane* at(int index); // null outside
    int indexOf(const PaneFrame* frame) const;
    void addOpener(QToolButton& opener, int index);
    void setIcons(int index, const QIcon& inTab, const QIcon& inStrip);
    int stripWidth() const; // pixels: follows its largest picture
    void choose(int index);
    void updateButtons();

    void setFloating(int index, bool floating);
    void gather(); // all panes become this widget's again, to end with it
    bool isFolded() const;
    void setFolded(bool fold);
    // Puts a pane beside the strip, over their window. With `take` it gets the focus and stays until it leaves.
    void slideOut(int index, bool take);
    void slideIn();
    bool isSlidOut() const;
    // To the control of the active pane that had the focus last, or its first one. False without a pane.
    bool takeFocus();
    bool hasFocusInside() const;

    QTabBar& bar;
    QStackedWidget& stack;
    std::vector<Pane> panes;
    std::function<void(int)> chosen;

protected:
    void resizeEvent(QResizeEvent*) override { arrange(); }
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool contains(const QWidget* widget) const;
    bool isUsed() const;
    void arrange();
    void drawEdge(int globalX);
    void fitIcons();
    void focusWithin(const QWidget* frame);
    void showPin();
    void stopWatching();

    QPointer<QWidget> opened; // the panes with their tabs; a child of the window while they are slid out
    QWidget* strip;
    QWidget* edge;
    QToolButton& floatButton;
    QToolButton& pinButton;
    QTimer hover;
    QTimer leave;
    int hovered = -1;
    bool taken = false; // by a click or the keyboard: then the pointer's going away does not end it
    int slideWidth;     // pixels
};
} // namespace orvplatform
