#include "platform/qt/OutlookWidget.h"

#include "platform/Process.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <vector>

namespace orvplatform
{
namespace
{
// Small pictures of the pane's own buttons, drawn in the colour of quiet text.
template <class Draw>
QIcon drawn(Draw draw)
{
    QPixmap picture(measures::smallIcon, measures::smallIcon);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme().mutedText, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw(painter);
    return picture;
}
QIcon floatIcon()
{
    return drawn([](QPainter& painter) {
        painter.drawRoundedRect(QRectF(2.5, 5.5, 8, 8), 1.5, 1.5);
        painter.drawPolyline(QPolygonF({{5.5, 2.5}, {13.5, 2.5}, {13.5, 10.5}}));
    });
}
QIcon foldIcon()
{
    return drawn([](QPainter& painter) {
        painter.drawPolyline(QPolygonF({{4, 4}, {8, 8}, {4, 12}}));
        painter.drawPolyline(QPolygonF({{9, 4}, {13, 8}, {9, 12}}));
    });
}

class TabsWidget;

// The window between a tab and its control. The control fills it.
class PaneFrame final : public QWidget
{
public:
    PaneFrame(TabsWidget& owner, QWidget* parent) : QWidget(parent), tabs(owner) {}
    TabsWidget& tabs;
    QPointer<QWidget> control;
    bool canFloat = true;
    bool canFold = true;
    bool canResize = true;

protected:
    void resizeEvent(QResizeEvent*) override
    {
        if (HWND window = control ? existingHandle(control) : nullptr)
            MoveWindow(window, 0, 0, width(), height(), TRUE);
    }
};

class TabsWidget final : public QWidget
{
public:
    explicit TabsWidget(QWidget* parent) : QWidget(parent)
    {
        bar.setExpanding(false);
        bar.setDrawBase(false);
        bar.setUsesScrollButtons(true);
        bar.setFocusPolicy(Qt::TabFocus);
        prepare(floatButton, floatIcon(), tr("Show this pane in a window of its own"));
        prepare(foldButton, foldIcon(), tr("Fold the side bar away"));
        auto* header = new QHBoxLayout;
        header->setContentsMargins(measures::grid, measures::grid, measures::grid, 0);
        header->setSpacing(0);
        header->addWidget(&bar, 1);
        header->addWidget(&floatButton);
        header->addWidget(&foldButton);
        auto* open = new QVBoxLayout(&opened);
        open->setContentsMargins(0, 0, 0, 0);
        open->setSpacing(0);
        open->addLayout(header);
        open->addWidget(&stack, 1);
        auto* strip = new QVBoxLayout(&folded);
        strip->setContentsMargins(measures::grid, measures::grid, measures::grid, measures::grid);
        strip->addStretch(1);
        auto* all = new QVBoxLayout(this);
        all->setContentsMargins(0, 0, 0, 0);
        all->addWidget(&opened);
        all->addWidget(&folded);
        folded.hide();
        connect(&bar, &QTabBar::currentChanged, this, [this](int index) { choose(index); });
        connect(&floatButton, &QToolButton::clicked, this, [this] { setFloating(bar.currentIndex(), true); });
        connect(&foldButton, &QToolButton::clicked, this, [this] { setFolded(true); });
    }
    ~TabsWidget() override { bar.disconnect(this); }

    struct Pane {
        QPointer<PaneFrame> frame;
        QWidget* page;       // holds the frame while it is docked
        QLabel* note;        // stands in for it otherwise
        QToolButton* opener; // in the strip
    };

    void setFloating(int index, bool floating)
    {
        Pane* pane = at(index);
        if (!pane || !pane->frame || pane->frame->isWindow() == floating)
            return;
        PaneFrame& frame = *pane->frame;
        if (floating) {
            const QSize size = frame.size();
            frame.setParent(window(), Qt::Tool);
            if (!frame.canResize)
                frame.setFixedSize(size);
            frame.resize(size);
            frame.move(mapToGlobal(QPoint(-size.width() / 2, measures::cardTitle)));
        } else {
            frame.setMinimumSize(0, 0);
            frame.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            frame.setParent(pane->page, Qt::Widget);
            pane->page->layout()->addWidget(&frame);
        }
        pane->note->setVisible(floating);
        frame.show();
        updateButtons();
    }

    void setFolded(bool fold)
    {
        opened.setVisible(!fold);
        folded.setVisible(fold);
        QWidget* whole = parentWidget() ? parentWidget() : this;
        if (fold)
            unfolded = {whole->minimumWidth(), whole->maximumWidth()};
        whole->setMinimumWidth(fold ? measures::foldedSideBar : unfolded.first);
        whole->setMaximumWidth(fold ? measures::foldedSideBar : unfolded.second);
        whole->updateGeometry();
    }

    void choose(int index)
    {
        if (index < 0)
            return;
        stack.setCurrentIndex(index);
        updateButtons();
        if (chosen)
            guarded([this, index] { chosen(index); });
    }

    Pane* at(int index)
    {
        return index >= 0 && index < static_cast<int>(panes.size()) ? &panes[static_cast<std::size_t>(index)] : nullptr;
    }
    int indexOf(const PaneFrame* frame) const
    {
        for (std::size_t i = 0; i < panes.size(); ++i)
            if (panes[i].frame == frame)
                return static_cast<int>(i);
        return -1;
    }
    void updateButtons()
    {
        const Pane* pane = at(bar.currentIndex());
        const bool docked = pane && pane->frame && !pane->frame->isWindow();
        floatButton.setVisible(docked && pane->frame->canFloat);
        foldButton.setVisible(pane && pane->frame && pane->frame->canFold);
    }

    // First, so that they go last: they hold the others, which are nobody's to delete.
    QWidget opened;
    QWidget folded;
    QTabBar bar;
    QStackedWidget stack;
    QToolButton floatButton;
    QToolButton foldButton;
    std::vector<Pane> panes;
    std::function<void(int)> chosen;

private:
    static void prepare(QToolButton& button, const QIcon& icon, const QString& tip)
    {
        button.setIcon(icon);
        button.setToolTip(tip);
        button.setAccessibleName(tip);
        button.setAutoRaise(true);
        button.setFocusPolicy(Qt::TabFocus);
    }
    std::pair<int, int> unfolded{0, QWIDGETSIZE_MAX};
};

// A frame's text is its tab's title; closing a floating one brings it back.
class FrameBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        auto* frame = static_cast<PaneFrame*>(window->widget);
        frame->setWindowTitle(text);
        const int index = frame->tabs.indexOf(frame);
        frame->tabs.bar.setTabText(index, text);
        if (TabsWidget::Pane* pane = frame->tabs.at(index))
            pane->opener->setToolTip(text);
    }
    bool message(HWND window, UINT message, WPARAM, LPARAM, LRESULT&) override
    {
        if (message != WM_CLOSE)
            return false;
        auto* frame = static_cast<PaneFrame*>(window->widget);
        frame->tabs.setFloating(frame->tabs.indexOf(frame), false);
        return true;
    }
};

TabsWidget* tabsWidget(HWND tabs)
{
    return isLive(tabs) ? dynamic_cast<TabsWidget*>(tabs->widget) : nullptr;
}
} // namespace

HWND makeOutlookBar(const CREATESTRUCTW&, QWidget* parent)
{
    return attachHandle(new QWidget(parent), outlookBarClass, nullptr);
}

HWND makeOutlookTabs(const CREATESTRUCTW&, QWidget* parent)
{
    return attachHandle(new TabsWidget(parent), outlookTabsClass, nullptr);
}

HWND addPane(HWND tabs, HWND control, const std::wstring& title, const QIcon& icon, bool canFloat, bool canFold,
             bool canResize)
{
    TabsWidget* widget = tabsWidget(tabs);
    if (!widget || !isLive(control))
        return nullptr;
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* note =
        new QLabel(QObject::tr("This pane is shown in a window of its own. Close that window to bring it back."));
    note->setWordWrap(true);
    note->setMargin(measures::gap);
    note->setAlignment(Qt::AlignTop);
    note->hide();
    auto* frame = new PaneFrame(*widget, page);
    layout->addWidget(note);
    layout->addWidget(frame, 1);
    frame->canFloat = canFloat;
    frame->canFold = canFold;
    frame->canResize = canResize;
    frame->control = control->widget;
    HWND window = attachHandle(frame, L"OrvPaneFrame", std::make_unique<FrameBehaviour>());
    window->style = WS_CHILD | WS_VISIBLE;
    auto* opener = new QToolButton;
    opener->setIcon(icon);
    opener->setAutoRaise(true);
    const int index = static_cast<int>(widget->panes.size());
    static_cast<QVBoxLayout*>(widget->folded.layout())->insertWidget(index, opener);
    widget->panes.push_back({frame, page, note, opener});
    widget->stack.addWidget(page);
    QObject::connect(opener, &QToolButton::clicked, widget, [widget, index] {
        widget->setFolded(false);
        widget->bar.setCurrentIndex(index);
    });
    SetParent(control, window);
    control->widget->show();
    {
        // The first tab becomes the current one by being added; that is told once the pane is complete.
        const QSignalBlocker quiet(widget->bar);
        widget->bar.addTab(icon, QString());
    }
    SetWindowTextW(window, title.c_str());
    MoveWindow(control, 0, 0, frame->width(), frame->height(), TRUE);
    widget->updateButtons();
    return window;
}

void setPaneIcon(HWND tabs, int index, const QIcon& icon)
{
    TabsWidget* widget = tabsWidget(tabs);
    if (TabsWidget::Pane* pane = widget ? widget->at(index) : nullptr) {
        widget->bar.setTabIcon(index, icon);
        pane->opener->setIcon(icon);
    }
}

void showPane(HWND tabs, int index)
{
    if (TabsWidget* widget = tabsWidget(tabs)) {
        const QSignalBlocker quiet(widget->bar);
        widget->bar.setCurrentIndex(index);
        widget->stack.setCurrentIndex(index);
        widget->updateButtons();
    }
}

void onPaneChosen(HWND tabs, std::function<void(int)> chosen)
{
    if (TabsWidget* widget = tabsWidget(tabs))
        widget->chosen = std::move(chosen);
}

void floatPane(HWND tabs, int index, bool floating)
{
    if (TabsWidget* widget = tabsWidget(tabs))
        widget->setFloating(index, floating);
}

bool isPaneFloating(HWND tabs, int index)
{
    TabsWidget* widget = tabsWidget(tabs);
    TabsWidget::Pane* pane = widget ? widget->at(index) : nullptr;
    return pane && pane->frame && pane->frame->isWindow();
}

void foldPanes(HWND tabs, bool fold)
{
    if (TabsWidget* widget = tabsWidget(tabs))
        widget->setFolded(fold);
}

bool arePanesFolded(HWND tabs)
{
    TabsWidget* widget = tabsWidget(tabs);
    return widget && !widget->folded.isHidden();
}
} // namespace orvplatform
