#include "platform/qt/RibbonWidget.h"

#include "platform/Process.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
enum class Level { Large, Small, PicturesOnly };

class Button final : public QToolButton
{
public:
    Button(const RibbonButton& source, QWidget* parent) : QToolButton(parent), id(source.id), what(source)
    {
        setAutoRaise(true);
        setFocusPolicy(Qt::TabFocus);
        setText(source.text);
        setToolTip(source.toolTip.isEmpty() ? source.text : source.toolTip);
        setAccessibleName(source.text);
        ensurePolished();
        setLevel(Level::Large);
    }
    void setLevel(Level level)
    {
        const bool large = level == Level::Large;
        const int side = large ? measures::largeIcon : measures::smallIcon;
        setIcon(large || what.small.isNull() ? what.large : what.small);
        // A picture of a higher resolution keeps its size.
        const QList<QSize> sizes = icon().availableSizes();
        setIconSize(sizes.isEmpty() || (!large && what.small.isNull()) ? QSize(side, side) : sizes.first());
        setToolButtonStyle(large                          ? Qt::ToolButtonTextUnderIcon
                           : level == Level::PicturesOnly ? Qt::ToolButtonIconOnly
                                                          : Qt::ToolButtonTextBesideIcon);
        setMinimumWidth(large ? 56 : 0);
        // Three small buttons stand where one large button does.
        setMinimumHeight(large ? 0 : smallHeight);
        setMaximumHeight(large ? QWIDGETSIZE_MAX : smallHeight);
    }

    const UINT id;

private:
    static constexpr int smallHeight = 20;
    RibbonButton what;
};

class Panel final : public QWidget
{
public:
    Panel(const RibbonPanel& source, QWidget* parent) : QWidget(parent)
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(measures::gap, measures::grid, measures::gap, 2);
        column->setSpacing(0);
        column->addLayout(&grid, 1);
        grid.setContentsMargins(0, 0, 0, 0);
        grid.setHorizontalSpacing(2);
        grid.setVerticalSpacing(1);
        grid.setRowStretch(3, 1); // takes what few buttons leave, so that the titles stand in one line
        auto* title = new QLabel(source.name);
        title->setAlignment(Qt::AlignCenter);
        title->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        QPalette quiet = title->palette();
        quiet.setColor(QPalette::WindowText, theme().mutedText);
        title->setPalette(quiet);
        column->addWidget(title);
        for (const RibbonButton& each : source.buttons)
            buttons.push_back(new Button(each, this));
        setLevel(Level::Large);
    }
    void setLevel(Level level)
    {
        constexpr int rows = 3;
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            const int at = static_cast<int>(i);
            buttons[i]->setLevel(level);
            grid.removeWidget(buttons[i]);
            if (level == Level::Large)
                grid.addWidget(buttons[i], 0, at, Qt::AlignTop);
            else
                grid.addWidget(buttons[i], at % rows, at / rows);
        }
        grid.invalidate();
        layout()->activate();
    }

    std::vector<Button*> buttons;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(theme().border);
        painter.drawLine(width() - 1, measures::gap, width() - 1, height() - measures::gap);
    }

private:
    QGridLayout grid;
};

class Page final : public QWidget
{
public:
    Page(const RibbonPage& source, QWidget* parent) : QWidget(parent)
    {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(0);
        for (const RibbonPanel& each : source.panels) {
            panels.push_back(new Panel(each, this));
            row->addWidget(panels.back());
        }
        row->addStretch(1);
    }
    QSize minimumSizeHint() const override { return {0, QWidget::minimumSizeHint().height()}; }

    void fit(int available)
    {
        int total = 0;
        for (Panel* panel : panels) {
            panel->setLevel(Level::Large);
            total += panel->sizeHint().width();
        }
        for (const Level level : {Level::Small, Level::PicturesOnly})
            for (auto panel = panels.rbegin(); panel != panels.rend() && total > available; ++panel) {
                total -= (*panel)->sizeHint().width();
                (*panel)->setLevel(level);
                total += (*panel)->sizeHint().width();
            }
    }

    std::vector<Panel*> panels;

protected:
    void resizeEvent(QResizeEvent*) override { fit(width()); }
};

class RibbonWidget final : public QWidget
{
public:
    explicit RibbonWidget(QWidget* parent) : QWidget(parent)
    {
        setAutoFillBackground(true);
        QPalette own = palette();
        own.setColor(QPalette::Window, theme().surface);
        setPalette(own);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 1);
        column->setSpacing(0);
        bar.setDrawBase(false);
        bar.setFocusPolicy(Qt::TabFocus);
        column->addWidget(&bar);
        column->addWidget(&stack, 1);
        stack.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        connect(&bar, &QTabBar::currentChanged, this, [this](int index) {
            stack.setCurrentIndex(index);
            if (onPage && index >= 0)
                guarded([this, index] { onPage(index); });
        });
        // The queries run while the program is otherwise idle.
        idle.setInterval(200);
        connect(&idle, &QTimer::timeout, this, [this] { update(); });
        idle.start();
    }
    ~RibbonWidget() override { bar.disconnect(this); }

    void markChanged()
    {
        if (changed)
            return;
        changed = true;
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
    }

    void rebuild()
    {
        changed = false;
        const QSignalBlocker quiet(bar);
        const int current = std::max(bar.currentIndex(), 0);
        while (stack.count() > 0) {
            QWidget* old = stack.widget(0);
            stack.removeWidget(old);
            old->deleteLater();
        }
        while (bar.count() > 0)
            bar.removeTab(0);
        buttons.clear();
        for (const RibbonPage& each : source ? source() : std::vector<RibbonPage>()) {
            auto* page = new Page(each, &stack);
            stack.addWidget(page);
            bar.addTab(each.name);
            for (Panel* panel : page->panels)
                for (Button* button : panel->buttons)
                    add(button);
        }
        bar.setVisible(bar.count() > 1);
        bar.setCurrentIndex(std::min(current, bar.count() - 1));
        stack.setCurrentIndex(bar.currentIndex());
    }

    void update()
    {
        if (changed)
            rebuild();
        for (Button* button : buttons) {
            if (hooks.isEnabled)
                guarded([&] { button->setEnabled(hooks.isEnabled(button->id)); });
            if (hooks.isChecked) {
                guarded([&] {
                    const bool checked = hooks.isChecked(button->id);
                    // Without the mark a button that is never checked would look pressed while it is clicked twice.
                    if (checked || button->isCheckable()) {
                        button->setCheckable(true);
                        button->setChecked(checked);
                    }
                });
            }
            if (hooks.menuOf && !button->menu()) {
                guarded([&] {
                    if (QMenu* menu = hooks.menuOf(button->id)) {
                        button->setMenu(menu);
                        button->setPopupMode(QToolButton::InstantPopup);
                    }
                });
            }
        }
    }

    RibbonSource source;
    RibbonHooks hooks;
    std::function<void(int)> onPage;
    QTabBar bar;
    QStackedWidget stack;
    std::vector<Button*> buttons;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(theme().border);
        painter.drawLine(0, height() - 1, width(), height() - 1);
    }

private:
    void add(Button* button)
    {
        buttons.push_back(button);
        connect(button, &QToolButton::clicked, this, [this, id = button->id] {
            HWND ribbon = existingHandle(this);
            if (hooks.onCommand)
                guarded([&] { hooks.onCommand(id); });
            else
                deliver(GetParent(ribbon), WM_COMMAND, MAKEWPARAM(static_cast<int>(id), 0), 0);
            update();
        });
    }

    QTimer idle;
    bool changed = false;
};

RibbonWidget* ribbonWidget(HWND ribbon)
{
    return isLive(ribbon) ? dynamic_cast<RibbonWidget*>(ribbon->widget) : nullptr;
}
} // namespace

HWND makeRibbon(const CREATESTRUCTW&, QWidget* parent)
{
    return attachHandle(new RibbonWidget(parent), ribbonClass, nullptr);
}

void setRibbonSource(HWND ribbon, RibbonSource source, std::function<void(int)> onPage)
{
    if (RibbonWidget* widget = ribbonWidget(ribbon)) {
        widget->source = std::move(source);
        widget->onPage = std::move(onPage);
        widget->markChanged();
    }
}

void ribbonChanged(HWND ribbon)
{
    if (RibbonWidget* widget = ribbonWidget(ribbon))
        widget->markChanged();
}

void showRibbonPage(HWND ribbon, int page)
{
    if (RibbonWidget* widget = ribbonWidget(ribbon)) {
        widget->update();
        const QSignalBlocker quiet(widget->bar);
        widget->bar.setCurrentIndex(page);
        widget->stack.setCurrentIndex(page);
    }
}

void setRibbonHooks(HWND ribbon, RibbonHooks hooks)
{
    if (RibbonWidget* widget = ribbonWidget(ribbon)) {
        widget->hooks = std::move(hooks);
        widget->update();
    }
}

void updateRibbon(HWND ribbon)
{
    if (RibbonWidget* widget = ribbonWidget(ribbon))
        widget->update();
}

QWidget* ribbonButton(HWND ribbon, UINT id)
{
    RibbonWidget* widget = ribbonWidget(ribbon);
    if (!widget)
        return nullptr;
    widget->update();
    for (Button* button : widget->buttons)
        if (button->id == id)
            return button;
    return nullptr;
}
} // namespace orvplatform
