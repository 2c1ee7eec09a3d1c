#include "platform/qt/EditControl.h"

#include "platform/qt/Controls.h"
#include "platform/qt/Window.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
// What both kinds of edit controls share: the prompt and the notifications of focus.
template <class Widget>
class EditBehaviour : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        Widget* edit = widgetOf(window);
        if constexpr (std::is_same_v<Widget, QLineEdit>)
            edit->setText(text);
        else
            edit->setPlainText(QString(text).remove(QLatin1Char('\r')));
    }
    QString text(HWND window) override
    {
        Widget* edit = widgetOf(window);
        if constexpr (std::is_same_v<Widget, QLineEdit>)
            return edit->text();
        else
            return edit->toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    }
    bool message(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override
    {
        Widget* edit = widgetOf(window);
        switch (message) {
        case EM_SETCUEBANNER:
            prompt = toQString(reinterpret_cast<LPCWSTR>(lParam));
            promptInFocus = wParam != 0;
            showPrompt(edit, edit->hasFocus());
            result = TRUE;
            return true;
        case EM_GETCUEBANNER: {
            // wParam: buffer, lParam: its size.
            const std::wstring value = prompt.toStdWString();
            result = wParam && lParam > static_cast<LPARAM>(value.size());
            if (result) {
                auto* buffer = reinterpret_cast<LPWSTR>(wParam);
                std::copy(value.begin(), value.end(), buffer);
                buffer[value.size()] = L'\0';
            }
            return true;
        }
        case EM_SETREADONLY:
            edit->setReadOnly(wParam != 0);
            result = TRUE;
            return true;
        case EM_SETSEL:
            select(edit, static_cast<int>(wParam), static_cast<int>(lParam));
            return true;
        case WM_SETFOCUS:
            showPrompt(edit, true);
            sendCommand(window, EN_SETFOCUS);
            return true;
        case WM_KILLFOCUS:
            showPrompt(edit, false);
            sendCommand(window, EN_KILLFOCUS);
            return true;
        default:
            return ownMessage(edit, message, wParam);
        }
    }

protected:
    static Widget* widgetOf(HWND window) { return static_cast<Widget*>(window->widget()); }

    bool ownMessage(Widget* edit, UINT message, WPARAM wParam)
    {
        if constexpr (std::is_same_v<Widget, QLineEdit>) {
            if (message == EM_SETLIMITTEXT) {
                edit->setMaxLength(wParam == 0 || wParam > 32767 ? 32767 : static_cast<int>(wParam));
                return true;
            }
            if (message == EM_SETPASSWORDCHAR) {
                edit->setEchoMode(wParam ? QLineEdit::Password : QLineEdit::Normal);
                return true;
            }
        }
        return false;
    }

private:
    void showPrompt(Widget* edit, bool focused)
    {
        edit->setPlaceholderText(focused && !promptInFocus ? QString() : prompt);
    }
    static void select(Widget* edit, int start, int end)
    {
        const int length = static_cast<int>(widgetText(edit).size());
        // A start of -1 takes the selection away, an end of -1 means the end of the text.
        const int from = std::clamp(start, 0, length);
        const int to = start < 0 ? from : end < 0 ? length : std::clamp(end, 0, length);
        if constexpr (std::is_same_v<Widget, QLineEdit>) {
            edit->setSelection(from, to - from);
        } else {
            QTextCursor cursor = edit->textCursor();
            cursor.setPosition(from);
            cursor.setPosition(to, QTextCursor::KeepAnchor);
            edit->setTextCursor(cursor);
        }
    }
    static QString widgetText(Widget* edit)
    {
        if constexpr (std::is_same_v<Widget, QLineEdit>)
            return edit->text();
        else
            return edit->toPlainText();
    }

    QString prompt;
    bool promptInFocus = false;
};

template <class Widget>
void announceChanges(HWND window, Widget* edit)
{
    QObject::connect(edit, &Widget::textChanged, window, [window] {
        sendCommand(window, EN_UPDATE);
        sendCommand(window, EN_CHANGE);
    });
}
} // namespace

HWND makeEdit(const CREATESTRUCTW& create, QWidget* parent)
{
    const auto style = static_cast<DWORD>(create.style);
    HWND window = nullptr;
    if (style & ES_MULTILINE) {
        auto* edit = new QPlainTextEdit(parent);
        edit->setTabChangesFocus(true);
        edit->setLineWrapMode(style & ES_AUTOHSCROLL ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
        edit->setHorizontalScrollBarPolicy(style & WS_HSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        edit->document()->setDocumentMargin(2);
        edit->setReadOnly(style & ES_READONLY);
        window = attachHandle(edit, L"Edit", std::make_unique<EditBehaviour<QPlainTextEdit>>());
        announceChanges(window, edit);
    } else {
        auto* edit = new QLineEdit(parent);
        edit->setEchoMode(style & ES_PASSWORD ? QLineEdit::Password : QLineEdit::Normal);
        edit->setReadOnly(style & ES_READONLY);
        // A line edit that is higher than its line keeps the text at the top.
        const bool tall = create.cy > 2 * QFontMetrics(edit->font()).height();
        edit->setAlignment((style & ES_RIGHT    ? Qt::AlignRight
                            : style & ES_CENTER ? Qt::AlignHCenter
                                                : Qt::AlignLeft) |
                           (tall ? Qt::AlignTop : Qt::AlignVCenter));
        if (style & ES_NUMBER)
            edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
        window = attachHandle(edit, L"Edit", std::make_unique<EditBehaviour<QLineEdit>>());
        announceChanges(window, edit);
    }
    return window;
}

void setValidCharacters(HWND window, const std::wstring& characters)
{
    auto* edit = isLive(window) ? qobject_cast<QLineEdit*>(window->widget()) : nullptr;
    if (!edit)
        return;
    delete edit->validator();
    if (characters.empty())
        return;
    const QString set = QRegularExpression::escape(QString::fromStdWString(characters));
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[%1]*").arg(set)), edit));
}
} // namespace orvplatform
