#include "platform/qt/StaticControl.h"

#include "platform/qt/Gdi.h"
#include "platform/qt/LongText.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

#include <algorithm>
#include <optional>
#include <utility>

namespace orvplatform
{
namespace
{
bool isPicture(DWORD style)
{
    const DWORD type = style & SS_TYPEMASK;
    return type == SS_BITMAP || type == SS_ICON;
}

bool isLong(const QLabel& label)
{
    return label.wordWrap() && label.textFormat() == Qt::PlainText && label.text().size() >= LongText::shortest;
}

// A label, or a picture that fills the control whatever its own size. Letters shrink a little where a text would be
// cut: some labels have a place in pixels, at every resolution.
class Label final : public QLabel
{
public:
    using QLabel::QLabel;
    QImage picture;           // an icon's
    HBITMAP bitmap = nullptr; // the control's
    bool isReported = false;  // that the bitmap can't be shown

protected:
    void paintEvent(QPaintEvent* event) override
    {
        const QRect room = textRoom(*this);
        const QFont& fitted = keptFont(room);
        if (isLong(*this)) {
            QPainter painter(this);
            drawFrame(&painter);
            painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, foregroundRole()));
            longText.draw(painter, text(), font(), room, alignment(), event->rect());
        } else if (fitted == font() && room == contentsRect()) {
            QLabel::paintEvent(event);
        } else {
            QPainter painter(this);
            drawFrame(&painter);
            painter.setFont(fitted);
            style()->drawItemText(&painter, room, static_cast<int>(alignment()) | Qt::TextWordWrap, palette(),
                                  isEnabled(), text(), foregroundRole());
        }
        if (picture.isNull() && !bitmap)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (!picture.isNull()) {
            painter.drawImage(contentsRect(), picture);
            return;
        }
        const QPixmap shown = shownPicture(bitmap, contentsRect().size());
        if (shown.isNull())
            reportUnreadable();
        else
            painter.drawPixmap(contentsRect(), shown);
    }

    void hideEvent(QHideEvent* event) override
    {
        longText.forget(); // thousands may have been seen
        QLabel::hideEvent(event);
    }

private:
    struct Fit {
        QString text;
        QFont font;
        QRect room;
        QFont fitted;
    };
    std::optional<Fit> fit; // the last one: a label is painted far more often than it changes
    LongText longText;

    const QFont& keptFont(const QRect& room)
    {
        if (!fit || fit->room != room || fit->font != font() || fit->text != text())
            fit = Fit{text(), font(), room, fittedFont(*this)};
        return fit->fitted;
    }
    // Pixels are decoded in the middle of painting, so the dialog hears of it when that is over.
    void reportUnreadable()
    {
        static const UINT message = RegisterWindowMessageW(L"OrvPictureUnreadable");
        HWND window = existingHandle(this);
        if (!std::exchange(isReported, true) && isLive(window))
            PostMessageW(GetParent(window), message, static_cast<WPARAM>(window->id), reinterpret_cast<LPARAM>(bitmap));
    }
};

class StaticBehaviour final : public Behaviour
{
public:
    ~StaticBehaviour() override
    {
        DeleteObject(bitmap);
        DestroyIcon(icon);
    }
    void setText(HWND window, const QString& text) override
    {
        if (!isPicture(window->style))
            static_cast<Label*>(window->widget())->setText(QString(text).remove(QLatin1Char('\r')));
    }
    bool message(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override
    {
        if (message == STM_SETIMAGE && wParam == IMAGE_BITMAP) {
            result = reinterpret_cast<LRESULT>(std::exchange(bitmap, reinterpret_cast<HBITMAP>(lParam)));
            showsIcon = false;
            widgetMade(window);
            return true;
        }
        if (message == STM_GETIMAGE) {
            result = wParam == IMAGE_ICON ? reinterpret_cast<LRESULT>(icon) : reinterpret_cast<LRESULT>(bitmap);
            return true;
        }
        if (message == STM_SETICON || (message == STM_SETIMAGE && wParam == IMAGE_ICON)) {
            const LPARAM handle = message == STM_SETICON ? static_cast<LPARAM>(wParam) : lParam;
            result = reinterpret_cast<LRESULT>(std::exchange(icon, reinterpret_cast<HICON>(handle)));
            showsIcon = true;
            widgetMade(window);
            return true;
        }
        if (message == WM_LBUTTONUP && (window->style & SS_NOTIFY)) {
            sendCommand(window, STN_CLICKED);
            return true;
        }
        return false;
    }
    // The picture that was set last.
    void widgetMade(HWND window) override
    {
        auto* label = static_cast<Label*>(window->madeWidget());
        if (!label)
            return;
        label->bitmap = bitmap;
        label->isReported = false;
        label->picture = showsIcon ? imageOf(icon) : QImage();
        label->update();
    }

private:
    HBITMAP bitmap = nullptr;
    HICON icon = nullptr;
    bool showsIcon = false;
};
} // namespace

QRect textRoom(const QLabel& label)
{
    QRect room = label.contentsRect();
    if (!label.parentWidget() || !label.wordWrap())
        return room;
    // What reaches out of the window isn't seen.
    const QRect seen = label.parentWidget()->rect().translated(-label.pos()).intersected(room);
    if (!seen.isEmpty())
        room = seen;
    const auto neighbours = label.parentWidget()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
    for (const QAbstractButton* button : neighbours) {
        const QRect covered = button->geometry().translated(-label.pos()).intersected(room);
        if (button->isVisibleTo(label.parentWidget()) && !covered.isEmpty() && covered.right() == room.right() &&
            covered.left() > room.center().x())
            room.setRight(covered.left() - 1);
    }
    return room;
}

QFont fittedFont(const QLabel& label)
{
    const QRect room = textRoom(label);
    if (!label.wordWrap() || label.textFormat() != Qt::PlainText || label.text().isEmpty())
        return label.font();
    if (isLong(label))
        return label.font(); // a step smaller changes nothing for a text of pages, and each costs a layout of all
    const auto fits = [&](const QFont& font) {
        const QRect needed = QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, label.text());
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    QFont font = label.font();
    if (fits(font))
        return font;
    const int whole = QFontInfo(font).pixelSize();
    // From small to large: where the smallest doesn't help, the text stays as it is.
    QFont fitted = font;
    for (int pixels = std::max(whole * 3 / 5, 9); pixels < whole; ++pixels) {
        font.setPixelSize(pixels);
        if (!fits(font))
            break;
        fitted = font;
    }
    return fitted;
}

namespace
{
Label* labelOfStyle(DWORD style, QWidget* parent)
{
    auto* label = new Label(parent);
    label->setTextFormat(Qt::PlainText);
    const DWORD type = style & SS_TYPEMASK;
    label->setWordWrap(type == SS_LEFT || type == SS_CENTER || type == SS_RIGHT);
    label->setAlignment((type == SS_CENTER  ? Qt::AlignHCenter
                         : type == SS_RIGHT ? Qt::AlignRight
                                            : Qt::AlignLeft) |
                        (style & SS_CENTERIMAGE ? Qt::AlignVCenter : Qt::AlignTop));
    if (style & SS_SUNKEN)
        label->setFrameStyle(QFrame::StyledPanel);
    // Clicks on a label go to the window behind it unless it asks for them.
    label->setAttribute(Qt::WA_TransparentForMouseEvents, !(style & SS_NOTIFY));
    return label;
}
} // namespace

QWidget* makeLabel(HWND control, QWidget* parent)
{
    return labelOfStyle(control->style, parent);
}

std::unique_ptr<Behaviour> staticBehaviour()
{
    return std::make_unique<StaticBehaviour>();
}

HWND makeStatic(const CREATESTRUCTW& create, QWidget* parent)
{
    return attachHandle(labelOfStyle(static_cast<DWORD>(create.style), parent), L"Static", staticBehaviour());
}
} // namespace orvplatform
