#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/UnmadeControl.h"
#include "platform/qt/Window.h"

#include "platform/qt/ButtonControl.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
// What a screen reader calls it: a picture has no words, so a button of nothing else goes by its tip.
void nameButton(QAbstractButton& button)
{
    const QString caption = button.text().remove(QLatin1Char('&'));
    button.setAccessibleName(caption.isEmpty() ? button.toolTip() : caption);
}

class ButtonBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        auto* button = static_cast<QAbstractButton*>(window->widget());
        button->setText(text);
        nameButton(*button);
    }
    bool message(HWND window, UINT message, WPARAM wParam, LPARAM, LRESULT& result) override
    {
        // Asked for where it is needed alone: of an unmade control it would be made.
        const auto button = [window] { return static_cast<QAbstractButton*>(window->widget()); };
        switch (message) {
        case BM_CLICK:
            button()->click();
            return true;
        case BM_GETCHECK:
            result = button()->isChecked() ? BST_CHECKED : BST_UNCHECKED;
            return true;
        case BM_SETCHECK:
            button()->setChecked(wParam != BST_UNCHECKED);
            return true;
        default:
            return false;
        }
    }
};

// A push button whose caption is drawn whole: where it is too long for one line it goes on, and where the lines are too
// many their letters shrink.
class PushButton final : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const FittedCaption caption = fittedCaption(*this);
        option.text = caption.text;
        option.fontMetrics = QFontMetrics(caption.font);
        painter.setFont(caption.font);
        painter.drawControl(QStyle::CE_PushButton, option);
    }
};

class GroupBoxBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        static_cast<QGroupBox*>(window->widget())->setTitle(text);
    }
};

void restyle(QWidget* widget)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return; // it is styled when it comes into view
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    renewFonts(widget);
    widget->update();
}

constexpr int smallestCaption = 9; // pixels of the font

// The style draws lines but breaks none.
QString brokenAtWords(const QString& text, const QFontMetrics& metrics, int width)
{
    const QStringList words = text.split(u' ');
    QStringList lines{words.first()};
    for (const QString& word : words.mid(1)) {
        const QString longer = lines.last() + u' ' + word;
        if (metrics.size(Qt::TextShowMnemonic, longer).width() <= width)
            lines.last() = longer;
        else
            lines << word;
    }
    return lines.join(u'\n');
}

QPushButton* pushButton(HWND window)
{
    return isLive(window) ? qobject_cast<QPushButton*>(window->widget()) : nullptr;
}

// Now, or when the button's widget is made. Nothing for other windows.
void changePushButton(HWND window, Drawn what, std::function<void(QPushButton&)> change)
{
    if (!isLive(window))
        return;
    whenMade(window, what, [change = std::move(change)](QWidget& widget) {
        if (auto* button = qobject_cast<QPushButton*>(&widget))
            change(*button);
    });
}

void connectButton(QAbstractButton& button, HWND window, DWORD style)
{
    if ((style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
        button.setProperty("primary", true);
    QObject::connect(&button, &QAbstractButton::clicked, window, [window] { sendCommand(window, BN_CLICKED); });
}
} // namespace

FittedCaption fittedCaption(const QPushButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const QRect room = button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    FittedCaption whole{button.text(), button.font()};
    const auto fits = [room](const QFont& font, const QString& text) {
        const QSize needed = QFontMetrics(font).size(Qt::TextShowMnemonic, text);
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    // A picture leaves no room for a second line.
    if (!button.icon().isNull() || whole.text.isEmpty() || fits(whole.font, whole.text))
        return whole;
    FittedCaption smaller = whole;
    for (int pixels = QFontInfo(whole.font).pixelSize(); pixels >= smallestCaption; --pixels) {
        smaller.font.setPixelSize(pixels);
        smaller.text = brokenAtWords(whole.text, QFontMetrics(smaller.font), room.width());
        if (fits(smaller.font, smaller.text))
            return smaller;
    }
    return whole;
}

HWND makeButton(const CREATESTRUCTW& create, QWidget* parent)
{
    const DWORD type = static_cast<DWORD>(create.style) & BS_TYPEMASK;
    if (type == BS_GROUPBOX) {
        auto* box = new QGroupBox(parent);
        // A group box only draws a frame around its neighbours.
        box->setAttribute(Qt::WA_TransparentForMouseEvents);
        box->lower();
        return attachHandle(box, L"Button", std::make_unique<GroupBoxBehaviour>());
    }
    QAbstractButton* button = nullptr;
    if (type == BS_CHECKBOX || type == BS_AUTOCHECKBOX)
        button = new QCheckBox(parent);
    else if (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON)
        button = new QRadioButton(parent);
    else
        button = new PushButton(parent);
    HWND window = attachHandle(button, L"Button", buttonBehaviour());
    connectButton(*button, window, static_cast<DWORD>(create.style));
    return window;
}

bool isPushButtonStyle(DWORD style)
{
    const DWORD type = style & BS_TYPEMASK;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

QWidget* makePushButton(HWND control, QWidget* parent)
{
    auto* button = new PushButton(parent);
    connectButton(*button, control, control->style);
    return button;
}

std::unique_ptr<Behaviour> buttonBehaviour()
{
    return std::make_unique<ButtonBehaviour>();
}

void setButtonPicture(HWND window, const QImage& picture)
{
    changePushButton(window, Drawn::Picture, [picture](QPushButton& button) {
        button.setIcon(QPixmap::fromImage(picture));
        button.setIconSize(picture.size());
    });
}

void setButtonFlat(HWND window, bool flat)
{
    changePushButton(window, Drawn::Flat, [flat](QPushButton& button) {
        if (button.property("flatPicture").toBool() == flat)
            return; // styling anew is dear
        button.setProperty("flatPicture", flat);
        restyle(&button);
    });
}

void setButtonColours(HWND window, COLORREF face, COLORREF text)
{
    QPushButton* button = pushButton(window);
    if (!button)
        return;
    const auto rule = [](const char* name, COLORREF colour) {
        return colour == CLR_DEFAULT ? QString()
                                     : QStringLiteral("%1: rgb(%2, %3, %4);")
                                           .arg(QLatin1String(name))
                                           .arg(GetRValue(colour))
                                           .arg(GetGValue(colour))
                                           .arg(GetBValue(colour));
    };
    button->setStyleSheet(rule("background-color", face) + rule("color", text));
}

void setToolTip(HWND window, const std::wstring& text)
{
    if (!isLive(window))
        return;
    whenMade(window, Drawn::ToolTip, [tip = QString::fromStdWString(text)](QWidget& widget) {
        widget.setToolTip(tip);
        widget.setAccessibleDescription(tip);
        if (auto* button = qobject_cast<QAbstractButton*>(&widget))
            nameButton(*button);
    });
}

void setDefaultButton(HWND window, bool isDefault)
{
    QPushButton* button = pushButton(window);
    if (!button)
        return;
    window->style = (window->style & ~BS_TYPEMASK) | (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
    button->setProperty("primary", isDefault);
    restyle(button);
}
} // namespace orvplatform
