#include "platform/qt/Controls.h"
#include "platform/qt/Gdi.h"
#include "platform/qt/Window.h"

#include "platform/qt/ButtonControl.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
class ButtonBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        auto* button = static_cast<QAbstractButton*>(window->widget);
        button->setText(text);
        button->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    }
    bool message(HWND window, UINT message, WPARAM wParam, LPARAM, LRESULT& result) override
    {
        auto* button = static_cast<QAbstractButton*>(window->widget);
        switch (message) {
        case BM_CLICK:
            button->click();
            return true;
        case BM_GETCHECK:
            result = button->isChecked() ? BST_CHECKED : BST_UNCHECKED;
            return true;
        case BM_SETCHECK:
            button->setChecked(wParam != BST_UNCHECKED);
            return true;
        default:
            return false;
        }
    }
};

class GroupBoxBehaviour final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override { static_cast<QGroupBox*>(window->widget)->setTitle(text); }
};

void restyle(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    renewFonts(widget);
    widget->update();
}

QPushButton* pushButton(HWND window)
{
    return isLive(window) ? qobject_cast<QPushButton*>(window->widget) : nullptr;
}
} // namespace

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
        button = new QPushButton(parent);
    HWND window = attachHandle(button, L"Button", std::make_unique<ButtonBehaviour>());
    if (type == BS_DEFPUSHBUTTON)
        button->setProperty("primary", true);
    QObject::connect(button, &QAbstractButton::clicked, window, [window] { sendCommand(window, BN_CLICKED); });
    return window;
}

void setButtonPicture(HWND window, const QPixmap& picture)
{
    if (QPushButton* button = pushButton(window)) {
        button->setIcon(picture);
        button->setIconSize(picture.size());
    }
}

void setButtonFlat(HWND window, bool flat)
{
    if (QPushButton* button = pushButton(window)) {
        button->setProperty("flatPicture", flat);
        restyle(button);
    }
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
