#include "platform/qt/OutlookWidget.h"

#include "platform/Process.h"
#include "platform/qt/Look.h"
#include "platform/qt/PaneTabs.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
// Asks for a strip while the panes are not pinned.
class BarWidget final : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override
    {
        const auto* tabs = findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        const auto* panes = dynamic_cast<const PaneTabs*>(tabs);
        return {panes && panes->isFolded() ? panes->stripWidth() : -1, -1};
    }
    QSize minimumSizeHint() const override { return {sizeHint().width(), -1}; }
};

// A frame's text is its tab's title; closing a floating one brings it back.
class FrameBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        auto* frame = static_cast<PaneFrame*>(window->widget());
        frame->setWindowTitle(text);
        const int index = frame->tabs.indexOf(frame);
        frame->tabs.bar.setTabText(index, text);
        if (PaneTabs::Pane* pane = frame->tabs.at(index)) {
            pane->opener->setToolTip(text);
            pane->opener->setAccessibleName(text);
        }
    }
    bool message(HWND window, UINT message, WPARAM, LPARAM, LRESULT&) override
    {
        if (message != WM_CLOSE)
            return false;
        auto* frame = static_cast<PaneFrame*>(window->widget());
        frame->tabs.setFloating(frame->tabs.indexOf(frame), false);
        return true;
    }
};

PaneTabs* tabsWidget(HWND tabs)
{
    return isLive(tabs) ? dynamic_cast<PaneTabs*>(tabs->widget()) : nullptr;
}
} // namespace

HWND makeOutlookBar(const CREATESTRUCTW&, QWidget* parent)
{
    return attachHandle(new BarWidget(parent), outlookBarClass, nullptr);
}

HWND makeOutlookTabs(const CREATESTRUCTW&, QWidget* parent)
{
    return attachHandle(new PaneTabs(parent), outlookTabsClass, nullptr);
}

HWND addPane(HWND tabs, HWND control, const std::wstring& title, bool canFloat, bool canFold, bool canResize)
{
    PaneTabs* widget = tabsWidget(tabs);
    if (!widget || !isLive(control))
        return nullptr;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* note =
        new QLabel(QObject::tr("This pane is shown in a window of its own. Close that window to bring it back."));
    note->setWordWrap(true);
    note->setMargin(scaled(measures::gap));
    note->setAlignment(Qt::AlignTop);
    note->hide();
    auto* frame = new PaneFrame(*widget, page);
    layout->addWidget(note);
    layout->addWidget(frame, 1);
    frame->canFloat = canFloat;
    frame->canFold = canFold;
    frame->canResize = canResize;
    frame->control = control->widget();
    HWND window = attachHandle(frame, L"OrvPaneFrame", std::make_unique<FrameBehaviour>());
    window->style = WS_CHILD | WS_VISIBLE;
    auto* opener = new QToolButton;
    const int index = static_cast<int>(widget->panes.size());
    widget->addOpener(*opener, index);
    widget->panes.push_back({frame, page, note, opener});
    widget->stack.addWidget(page);
    SetParent(control, window);
    control->widget()->show();
    {
        // The first tab becomes the current one by being added; that is told once the pane is complete.
        const QSignalBlocker quiet(widget->bar);
        widget->bar.addTab(QString());
    }
    SetWindowTextW(window, title.c_str());
    MoveWindow(control, 0, 0, frame->width(), frame->height(), TRUE);
    widget->updateButtons();
    return window;
}

void setPaneIcons(HWND tabs, int index, const QIcon& tab, const QIcon& strip)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->setIcons(index, tab, strip);
}

void showPane(HWND tabs, int index)
{
    if (PaneTabs* widget = tabsWidget(tabs)) {
        const QSignalBlocker quiet(widget->bar);
        widget->bar.setCurrentIndex(index);
        widget->stack.setCurrentIndex(index);
        widget->updateButtons();
    }
}

void onPaneChosen(HWND tabs, std::function<void(int)> chosen)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->chosen = std::move(chosen);
}

void floatPane(HWND tabs, int index, bool floating)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->setFloating(index, floating);
}

bool isPaneFloating(HWND tabs, int index)
{
    PaneTabs* widget = tabsWidget(tabs);
    PaneTabs::Pane* pane = widget ? widget->at(index) : nullptr;
    return pane && pane->frame && pane->frame->isWindow();
}

void foldPanes(HWND tabs, bool fold)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->setFolded(fold);
}

bool arePanesFolded(HWND tabs)
{
    PaneTabs* widget = tabsWidget(tabs);
    return widget && widget->isFolded();
}

void slidePaneOut(HWND tabs, int index)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->slideOut(index, true);
}

bool arePanesSlidOut(HWND tabs)
{
    PaneTabs* widget = tabsWidget(tabs);
    return widget && widget->isSlidOut();
}

void gatherPanes(HWND tabs)
{
    if (PaneTabs* widget = tabsWidget(tabs))
        widget->gather();
}

bool focusPane(HWND tabs)
{
    PaneTabs* widget = tabsWidget(tabs);
    return widget && widget->takeFocus();
}

bool hasPaneFocus(HWND tabs)
{
    const PaneTabs* widget = tabsWidget(tabs);
    return widget && widget->hasFocusInside();
}
} // namespace orvplatform
