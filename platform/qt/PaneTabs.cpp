#include "platform/qt/PaneTabs.h"

#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/PaneTabParts.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
void prepare(QToolButton& button, const QString& tip)
{
    button.setToolTip(tip);
    button.setAccessibleName(tip);
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::TabFocus);
}

void hideAll(QWidget& widget)
{
    // A hidden focus would jump to some neighbour.
    if (QWidget* focus = QApplication::focusWidget(); focus && widget.isAncestorOf(focus))
        focus->clearFocus();
    widget.hide();
}
} // namespace

void PaneFrame::resizeEvent(QResizeEvent*)
{
    if (HWND window = control ? existingHandle(control) : nullptr)
        MoveWindow(window, 0, 0, width(), height(), TRUE);
}

PaneTabs::PaneTabs(QWidget* parent)
    : QWidget(parent), bar(*new QTabBar), stack(*new QStackedWidget), opened(new QWidget(this)),
      strip(new QWidget(this)), edge(new Edge(opened, [this](int x) { drawEdge(x); })), floatButton(*new QToolButton),
      pinButton(*new QToolButton), slideWidth(sideBarWidth())
{
    opened->setAutoFillBackground(true);
    bar.setExpanding(false);
    bar.setDrawBase(false);
    bar.setUsesScrollButtons(true);
    bar.setFocusPolicy(Qt::TabFocus);
    prepare(floatButton, tr("Show this pane in a window of its own"));
    floatButton.setIcon(floatIcon());
    prepare(pinButton, {});
    pinButton.setObjectName(QStringLiteral("pin"));
    auto* header = new QHBoxLayout;
    const int grid = scaled(measures::grid);
    header->setContentsMargins(grid, grid, grid, 0);
    header->setSpacing(0);
    header->addWidget(&bar, 1);
    header->addWidget(&floatButton);
    header->addWidget(&pinButton);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addLayout(header);
    column->addWidget(&stack, 1);
    auto* row = new QHBoxLayout(opened);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(edge);
    row->addLayout(column, 1);
    edge->hide();
    auto* icons = new QVBoxLayout(strip);
    icons->setContentsMargins(grid, grid, grid, grid);
    icons->setSpacing(grid);
    icons->addStretch(1);
    strip->hide();
    fitIcons();
    showPin();
    hover.setSingleShot(true);
    hover.setInterval(300);
    leave.setSingleShot(true);
    leave.setInterval(600);
    connect(&bar, &QTabBar::currentChanged, this, [this](int index) { choose(index); });
    connect(&floatButton, &QToolButton::clicked, this, [this] { setFloating(bar.currentIndex(), true); });
    connect(&pinButton, &QToolButton::clicked, this, [this] { setFolded(!isFolded()); });
    connect(&hover, &QTimer::timeout, this, [this] { slideOut(hovered, false); });
    connect(&leave, &QTimer::timeout, this, [this] {
        if (!isUsed())
            slideIn();
    });
}

PaneTabs::~PaneTabs()
{
    // Slid out, the panes belong to the window, which may be ending before.
    if (opened) {
        bar.disconnect(this);
        delete opened;
    }
}

void PaneTabs::setFloating(int index, bool floating)
{
    Pane* pane = at(index);
    if (!pane || !pane->frame || pane->frame->isWindow() == floating)
        return;
    PaneFrame& frame = *pane->frame;
    if (floating) {
        const QSize size = frame.size();
        const QPoint place = mapToGlobal(QPoint(-size.width() / 2, scaled(measures::cardTitle)));
        slideIn();
        frame.setParent(window(), Qt::Tool);
        if (!frame.canResize)
            frame.setFixedSize(size);
        else
            frame.setMinimumSize(sideBarWidth() / 2, sideBarWidth() / 2);
        frame.resize(size);
        frame.move(place);
    } else {
        frame.setMinimumSize(0, 0);
        frame.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        frame.setParent(pane->page, Qt::Widget);
        pane->page->layout()->addWidget(&frame);
    }
    renewFonts(&frame);
    pane->note->setVisible(floating);
    frame.show();
    updateButtons();
}

void PaneTabs::gather()
{
    slideIn();
    for (const Pane& pane : panes) {
        if (pane.frame && pane.frame->isWindow()) {
            pane.frame->hide();
            pane.frame->setParent(pane.page);
        }
    }
}

bool PaneTabs::isFolded() const
{
    return !strip->isHidden();
}

void PaneTabs::setFolded(bool fold)
{
    if (fold == isFolded())
        return;
    if (fold) {
        slideWidth = std::max(width(), sideBarWidth() / 2);
        strip->show();
        hideAll(*opened);
    } else {
        stopWatching();
        strip->hide();
        edge->hide();
        opened->setParent(this);
        renewFonts(opened);
        opened->show();
    }
    showPin();
    arrange();
    updateGeometry(); // the bar asks for another width
}

void PaneTabs::slideOut(int index, bool take)
{
    Pane* pane = at(index);
    if (!isFolded() || !pane)
        return;
    if (pane->frame && pane->frame->isWindow()) {
        pane->frame->raise();
        pane->frame->activateWindow();
        return;
    }
    bar.setCurrentIndex(index);
    if (!isSlidOut()) {
        opened->setParent(window());
        // A view that draws into a window of the system's is covered only by such a window.
        const QList<QWidget*> below = window()->findChildren<QWidget*>();
        if (std::any_of(below.begin(), below.end(),
                        [](const QWidget* each) { return each->testAttribute(Qt::WA_PaintOnScreen); })) {
            opened->setAttribute(Qt::WA_DontCreateNativeAncestors);
            opened->setAttribute(Qt::WA_NativeWindow);
        }
        renewFonts(opened);
        edge->show();
        arrange();
        opened->show();
        opened->raise();
        qApp->installEventFilter(this);
    }
    taken = taken || take;
    if (take)
        focusWithin(pane->frame);
}

void PaneTabs::slideIn()
{
    if (!isSlidOut())
        return;
    stopWatching();
    opened->setParent(this);
    edge->hide();
    hideAll(*opened);
    arrange();
}

bool PaneTabs::isSlidOut() const
{
    return isFolded() && opened && opened->parentWidget() != this && !opened->isHidden();
}

void PaneTabs::choose(int index)
{
    if (index < 0)
        return;
    stack.setCurrentIndex(index);
    updateButtons();
    if (chosen)
        guarded([this, index] { chosen(index); });
}

PaneTabs::Pane* PaneTabs::at(int index)
{
    return index >= 0 && index < static_cast<int>(panes.size()) ? &panes[static_cast<std::size_t>(index)] : nullptr;
}

int PaneTabs::indexOf(const PaneFrame* frame) const
{
    for (std::size_t i = 0; i < panes.size(); ++i)
        if (panes[i].frame == frame)
            return static_cast<int>(i);
    return -1;
}

void PaneTabs::addOpener(QToolButton& opener, int index)
{
    static_cast<QVBoxLayout*>(strip->layout())->insertWidget(index, &opener);
    opener.setAutoRaise(true);
    opener.setFocusPolicy(Qt::TabFocus);
    opener.installEventFilter(this);
    connect(&opener, &QToolButton::clicked, this, [this, index] {
        hover.stop();
        const bool again = isSlidOut() && taken && bar.currentIndex() == index;
        again ? slideIn() : slideOut(index, true);
    });
}

void PaneTabs::setIcons(int index, const QIcon& inTab, const QIcon& inStrip)
{
    if (Pane* pane = at(index)) {
        bar.setTabIcon(index, inTab);
        pane->opener->setIcon(inStrip);
        fitIcons();
    }
}

int PaneTabs::stripWidth() const
{
    return strip->width();
}

void PaneTabs::fitIcons()
{
    const int own = scaled(measures::smallIcon);
    for (QToolButton* button : {&floatButton, &pinButton})
        button->setIconSize({own, own});
    // A list's pictures have the display's step already.
    QSize inTab(1, 1);
    QSize inStrip(own, own);
    for (std::size_t i = 0; i < panes.size(); ++i) {
        inTab = inTab.expandedTo(sizeOf(bar.tabIcon(static_cast<int>(i))));
        inStrip = inStrip.expandedTo(sizeOf(panes[i].opener->icon()));
    }
    bar.setIconSize(inTab);
    const int side = std::max(inStrip.width(), inStrip.height());
    strip->setFixedWidth(side * measures::foldedSideBar / measures::smallIcon);
    const int opener = strip->width() - 2 * scaled(measures::grid);
    for (const Pane& pane : panes) {
        pane.opener->setIconSize(inStrip);
        pane.opener->setFixedSize(opener, opener);
    }
    arrange();
    updateGeometry();
}

void PaneTabs::updateButtons()
{
    const Pane* pane = at(bar.currentIndex());
    const bool docked = pane && pane->frame && !pane->frame->isWindow();
    floatButton.setVisible(docked && pane->frame->canFloat);
    pinButton.setVisible(pane && pane->frame && pane->frame->canFold);
}

void PaneTabs::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) {
        floatButton.setIcon(floatIcon());
        showPin();
    }
    QWidget::changeEvent(event);
}

void PaneTabs::showPin()
{
    pinButton.setIcon(pinIcon(!isFolded()));
    const QString tip = isFolded() ? tr("Keep the side bar open") : tr("Hide the side bar while it is not used");
    pinButton.setToolTip(tip);
    pinButton.setAccessibleName(tip);
}

void PaneTabs::arrange()
{
    if (!opened)
        return;
    strip->setGeometry(width() - strip->width(), 0, strip->width(), height());
    if (opened->parentWidget() == this) {
        opened->setGeometry(rect());
        return;
    }
    const QPoint corner = mapTo(window(), QPoint(strip->x(), 0));
    const int left = std::max(corner.x() - slideWidth, 0);
    opened->setGeometry(left, corner.y(), corner.x() - left, height());
}

void PaneTabs::drawEdge(int globalX)
{
    const int right = opened->mapToGlobal(QPoint(opened->width(), 0)).x();
    slideWidth = std::clamp(right - globalX, sideBarWidth() / 2, 2 * sideBarWidth());
    arrange();
}

} // namespace orvplatform
