#include "platform/qt/SheetWidget.h"

#include "afxdlgs.h"
#include "platform/Process.h"
#include "platform/qt/DialogWindow.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Look.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
class SheetWidget final : public QWidget
{
public:
    explicit SheetWidget(QWidget* owner)
        : QWidget(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                             Qt::WindowCloseButtonHint)
    {
        auto* all = new QVBoxLayout(this);
        all->setContentsMargins(scaled(12), scaled(12), scaled(12), scaled(12));
        all->setSpacing(scaled(12));
        auto* middle = new QHBoxLayout;
        middle->addWidget(&titles);
        middle->addWidget(&host, 1);
        all->addLayout(middle, 1);
        auto* row = new QHBoxLayout;
        row->addStretch(1);
        for (QPushButton* button : {&ok, &cancel, &apply}) {
            button->setMinimumSize(scaled(84), scaled(28));
            row->addWidget(button);
        }
        ok.setProperty("primary", true);
        apply.setEnabled(false);
        all->addLayout(row);
        titles.setObjectName(QStringLiteral("sheetPages"));
        titles.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        fitTitles();
        titles.setFrameShape(QFrame::NoFrame);
        host.setMinimumSize(scaled(420), scaled(320));
        new QStackedLayout(&host);
        connect(&titles, &QListWidget::currentRowChanged, this, [this](int page) {
            if (page >= 0 && page != shown && !(actions.show && ask(page)))
                select(shown);
        });
        connect(&ok, &QPushButton::clicked, this, [this] { press(IDOK); });
        connect(&cancel, &QPushButton::clicked, this, [this] { press(IDCANCEL); });
        connect(&apply, &QPushButton::clicked, this, [this] { press(ID_APPLY_NOW); });
    }
    ~SheetWidget() override { titles.disconnect(this); }

    QStackedLayout* stack() { return static_cast<QStackedLayout*>(host.layout()); }
    void select(int row)
    {
        const QSignalBlocker quiet(titles);
        titles.setCurrentRow(row);
    }

    // As wide as the widest title needs it in the list's font.
    void fitTitles()
    {
        titles.ensurePolished();
        titles.setFixedWidth(std::max(scaled(148), titles.sizeHintForColumn(0) + 2 * titles.frameWidth()));
    }

    SheetActions actions;
    QListWidget titles;
    QWidget host;
    QPushButton ok{QObject::tr("OK")};
    QPushButton cancel{QObject::tr("Cancel")};
    QPushButton apply{QObject::tr("Apply")};
    int shown = -1;

private:
    bool ask(int row)
    {
        bool allowed = false;
        guarded([&] { allowed = actions.show(row); });
        return allowed;
    }
    void press(int command)
    {
        guarded([&] { actions.press(command); });
    }
};

SheetWidget* sheetWidget(HWND sheet)
{
    return isLive(sheet) ? dynamic_cast<SheetWidget*>(sheet->widget()) : nullptr;
}
} // namespace

HWND createSheetWindow(HWND owner, const std::wstring& title, SheetActions actions,
                       const std::function<void(HWND)>& attach)
{
    auto* widget = new SheetWidget(ownerOf(owner));
    widget->actions = std::move(actions);
    HWND window = attachHandle(widget, L"OrvSheet", nullptr);
    window->style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    window->childHost = &widget->host;
    makeDialog(window);
    if (attach)
        attach(window);
    SetWindowTextW(window, title.c_str());
    return window;
}

void addSheetPage(HWND sheet, const std::wstring& title)
{
    if (SheetWidget* widget = sheetWidget(sheet)) {
        const QSignalBlocker quiet(widget->titles);
        widget->titles.addItem(QString::fromStdWString(title));
        widget->fitTitles();
        auto* page = new QWidget;
        widget->stack()->addWidget(page);
    }
}

void removeSheetPage(HWND sheet, int page)
{
    SheetWidget* widget = sheetWidget(sheet);
    QLayoutItem* item = widget ? widget->stack()->itemAt(page) : nullptr;
    if (!item)
        return;
    const QSignalBlocker quiet(widget->titles);
    QWidget* content = item->widget();
    widget->stack()->removeWidget(content);
    content->deleteLater();
    delete widget->titles.takeItem(page);
    widget->shown = -1;
}

void placeSheetPage(HWND sheet, int page, QWidget* content)
{
    SheetWidget* widget = sheetWidget(sheet);
    QLayoutItem* item = widget ? widget->stack()->itemAt(page) : nullptr;
    if (!item || !content)
        return;
    QWidget* place = item->widget();
    HWND window = existingHandle(content);
    const bool sized = window && window->isDialog; // a page from a template has its own size
    const QSize size = content->size();
    content->setParent(place);
    if (sized) {
        content->move(0, 0);
        widget->host.setMinimumSize(widget->host.minimumSize().expandedTo(size));
    } else {
        auto* layout = new QVBoxLayout(place);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(content);
    }
    renewFonts(content);
    content->show();
}

void showSheetPage(HWND sheet, int page)
{
    if (SheetWidget* widget = sheetWidget(sheet)) {
        widget->shown = page;
        widget->select(page);
        widget->stack()->setCurrentIndex(page);
    }
}

void enableApply(HWND sheet, bool enable)
{
    if (SheetWidget* widget = sheetWidget(sheet))
        widget->apply.setEnabled(enable);
}
} // namespace orvplatform
