#include "platform/qt/RibbonWidget.h"

#include "platform/Process.h"
#include "platform/qt/Look.h"
#include "platform/qt/Native.h"
#include "platform/qt/RibbonButtons.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
// The row of panels, of which a piece is in view when it is too long.
class Page final : public QWidget
{
public:
    Page(const RibbonPage& source, QWidget* parent) : QWidget(parent), row(new QWidget(this))
    {
        for (const RibbonPanel& each : source.panels)
            panels.push_back(new RibbonGroup(each, row));
        for (const RibbonGroup* panel : panels)
            for (const RibbonToolButton* button : panel->buttons)
                picture = std::max(picture, button->largePicture());
        setFixedHeight(ribbonRowHeight(fontMetrics(), picture));
        // In reading order; the arrows are for the mouse, the Tab key brings every button into view by itself.
        for (QToolButton* arrow : {&back, &forth}) {
            arrow->setParent(this);
            arrow->setFocusPolicy(Qt::NoFocus);
            arrow->setAutoRaise(true);
            arrow->setAutoRepeat(true);
            arrow->setAutoFillBackground(true);
            arrow->hide();
        }
        back.setArrowType(Qt::LeftArrow);
        back.setAccessibleName(QObject::tr("Show the panels before"));
        forth.setArrowType(Qt::RightArrow);
        forth.setAccessibleName(QObject::tr("Show the panels after"));
        connect(&back, &QToolButton::clicked, this, [this] { scrollTo(offset - step); });
        connect(&forth, &QToolButton::clicked, this, [this] { scrollTo(offset + step); });
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now && row->isAncestorOf(now))
                reveal(*now);
        });
    }
    QSize minimumSizeHint() const override { return {0, height()}; }
    QSize sizeHint() const override { return {total(), height()}; }

    std::vector<RibbonGroup*> panels;

protected:
    void resizeEvent(QResizeEvent*) override { fit(); }
    void wheelEvent(QWheelEvent* event) override
    {
        const QPoint turned = event->angleDelta();
        scrollTo(offset - (turned.x() ? turned.x() : turned.y()) / 2);
    }

private:
    static constexpr int step = 80;
    static constexpr int arrowWidth = 20;

    int total() const
    {
        int sum = 0;
        for (const RibbonGroup* panel : panels)
            sum += panel->widthAs(panel->shownAs());
        return sum;
    }

    // Turns panels into columns until the row fits.
    void fit()
    {
        std::vector<RibbonGroup*> order(panels.rbegin(), panels.rend());
        std::stable_sort(order.begin(), order.end(), [](const RibbonGroup* one, const RibbonGroup* other) {
            return std::make_pair(other->keepsLarge, one->buttons.size()) >
                   std::make_pair(one->keepsLarge, other->buttons.size());
        });
        for (RibbonGroup* panel : panels)
            panel->showAs(RibbonLevel::Large);
        for (const RibbonLevel level : {RibbonLevel::Small, RibbonLevel::Icons})
            for (RibbonGroup* panel : order)
                if (total() > width() && panel->widthAs(level) < panel->widthAs(panel->shownAs()))
                    panel->showAs(level);
        int x = 0;
        for (RibbonGroup* panel : panels) {
            const int panelWidth = panel->widthAs(panel->shownAs());
            panel->setGeometry(x, 0, panelWidth, height());
            panel->setButtonArea(ribbonButtonArea(fontMetrics(), picture));
            x += panelWidth;
        }
        row->resize(x, height());
        back.setGeometry(0, 0, arrowWidth, height());
        forth.setGeometry(width() - arrowWidth, 0, arrowWidth, height());
        scrollTo(offset);
    }

    void scrollTo(int wanted)
    {
        const int last = std::max(row->width() - width(), 0);
        offset = std::clamp(wanted, 0, last);
        row->move(-offset, 0);
        back.setVisible(offset > 0);
        forth.setVisible(offset < last);
        back.raise();
        forth.raise();
    }

    void reveal(const QWidget& button)
    {
        const int left = button.mapTo(row, QPoint()).x();
        if (left < offset + arrowWidth)
            scrollTo(left - arrowWidth);
        else if (left + button.width() > offset + width() - arrowWidth)
            scrollTo(left + button.width() - width() + arrowWidth);
    }

    QWidget* row;
    QToolButton back;
    QToolButton forth;
    int picture = measures::largeIcon;
    int offset = 0;
};

class RibbonWidget final : public QWidget
{
public:
    explicit RibbonWidget(QWidget* parent) : QWidget(parent)
    {
        setAutoFillBackground(true);
        colour();
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
        // F10 goes into the ribbon, as into a menu bar, and Escape back to where the user was.
        auto* enter = new QShortcut(QKeySequence(Qt::Key_F10), this);
        connect(enter, &QShortcut::activated, this, [this] { takeFocus(); });
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
            for (RibbonGroup* panel : page->panels)
                for (RibbonToolButton* button : panel->buttons)
                    add(button);
        }
        bar.setVisible(bar.count() > 1);
        bar.setCurrentIndex(std::min(current, bar.count() - 1));
        stack.setCurrentIndex(bar.currentIndex());
    }

    bool takeFocus()
    {
        const bool isInside = QApplication::focusWidget() && isAncestorOf(QApplication::focusWidget());
        if (!isInside)
            before = QApplication::focusWidget();
        for (RibbonToolButton* button : buttons) {
            if (button->isEnabled() && button->isVisible()) {
                activateWindow(); // the focus may be in a pane with a window of its own
                button->setFocus(Qt::ShortcutFocusReason);
                return true;
            }
        }
        return false;
    }

    void update()
    {
        if (changed)
            rebuild();
        for (RibbonToolButton* button : buttons) {
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
    std::vector<RibbonToolButton*> buttons;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(theme().border);
        painter.drawLine(0, height() - 1, width(), height() - 1);
    }
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            markChanged();
        if (event->type() == QEvent::PaletteChange && palette().color(QPalette::Window) != theme().surface)
            colour();
        QWidget::changeEvent(event);
    }

private:
    void colour()
    {
        QPalette own = palette();
        own.setColor(QPalette::Window, theme().surface);
        setPalette(own);
    }
    void leave()
    {
        if (before) {
            before->activateWindow();
            before->setFocus(Qt::OtherFocusReason);
        }
    }
    void add(RibbonToolButton* button)
    {
        buttons.push_back(button);
        button->onLeave = [this] { leave(); };
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
    QPointer<QWidget> before; // had the focus
    bool changed = false;
};

RibbonWidget* ribbonWidget(HWND ribbon)
{
    return isLive(ribbon) ? dynamic_cast<RibbonWidget*>(ribbon->widget()) : nullptr;
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

bool focusRibbon(HWND ribbon)
{
    RibbonWidget* widget = ribbonWidget(ribbon);
    return widget && widget->takeFocus();
}

QWidget* ribbonButton(HWND ribbon, UINT id)
{
    RibbonWidget* widget = ribbonWidget(ribbon);
    if (!widget)
        return nullptr;
    widget->update();
    for (RibbonToolButton* button : widget->buttons)
        if (button->id == id)
            return button;
    return nullptr;
}
} // namespace orvplatform
