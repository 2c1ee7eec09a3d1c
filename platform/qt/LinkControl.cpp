#include "platform/qt/LinkControl.h"

#include "commctrl.h"
#include "platform/qt/Controls.h"
#include "platform/qt/Look.h"
#include "platform/qt/Window.h"
#include "shellapi.h"

#include <QtWidgets>

namespace orvplatform
{
namespace
{
// Text whose links are written as <a href="address">text</a>. Everything else in it is plain text.
class TextWithLinks final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        written = text;
        show(*static_cast<QLabel*>(window->widget()));
    }

    // The theme's colours stand within the shown text.
    void show(QLabel& label)
    {
        static const QRegularExpression link(QStringLiteral("<a(\\s[^>]*)?>(.*?)</a>"),
                                             QRegularExpression::CaseInsensitiveOption |
                                                 QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression href(QStringLiteral("\\shref\\s*=\\s*\"([^\"]*)\""),
                                             QRegularExpression::CaseInsensitiveOption);
        addresses.clear();
        QString html;
        qsizetype at = 0;
        for (auto matches = link.globalMatch(written); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            html += plain(written.mid(at, match.capturedStart() - at));
            html += QStringLiteral("<a href=\"%1\" style=\"color: %2\">%3</a>")
                        .arg(addresses.size())
                        .arg(theme().accentText.name(), plain(unbroken(match.captured(2), label)));
            addresses << href.match(match.captured(1)).captured(1);
            at = match.capturedEnd();
        }
        html += plain(written.mid(at));
        label.setText(html);
    }

    void click(HWND window, int index)
    {
        if (index < 0 || index >= addresses.size())
            return;
        NMLINK notice{};
        notice.hdr = {window, static_cast<UINT_PTR>(window->id), NM_CLICK};
        notice.item.iLink = index;
        const std::wstring address = addresses[index].toStdWString().substr(0, L_MAX_URL_LENGTH - 1);
        std::copy(address.begin(), address.end(), notice.item.szUrl);
        deliver(GetParent(window), WM_NOTIFY, static_cast<WPARAM>(window->id), reinterpret_cast<LPARAM>(&notice));
    }

    QStringList addresses;

private:
    QString written;

    // An address goes to the next line as a whole where it has the room; a longer one is broken, but not before its
    // host's name.
    static QString unbroken(QString text, const QWidget& label)
    {
        const QString joiner(QChar(0x2060));
        if (text.contains(QLatin1String("://")) && label.fontMetrics().horizontalAdvance(text) <= label.width())
            return QStringList(text.split(QString(), Qt::SkipEmptyParts)).join(joiner);
        return text.replace(QLatin1String("://"), QStringList{":", "/", "/", ""}.join(joiner));
    }
    static QString plain(const QString& text)
    {
        // Runs of blanks stay what they are.
        return text.toHtmlEscaped().replace(QLatin1String("  "), QLatin1String("&nbsp; "));
    }
};

class LinkLabel final : public QLabel
{
public:
    using QLabel::QLabel;
    TextWithLinks* links = nullptr;

protected:
    void changeEvent(QEvent* event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::PaletteChange && links)
            links->show(*this);
    }
};

class WebLink final : public Behaviour
{
public:
    void setText(HWND window, const QString& text) override
    {
        static_cast<QPushButton*>(window->widget())->setText(text);
    }
    bool message(HWND window, UINT message, WPARAM, LPARAM, LRESULT&) override
    {
        if (message != BM_CLICK)
            return false;
        static_cast<QPushButton*>(window->widget())->click();
        return true;
    }
    void click(HWND window)
    {
        if (!address.empty())
            ShellExecuteW(window, L"open", (prefix + address).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
        sendCommand(window, BN_CLICKED);
    }

    std::wstring address;
    std::wstring prefix;
};

WebLink* webLink(HWND window)
{
    return isLive(window) ? dynamic_cast<WebLink*>(window->behaviour.get()) : nullptr;
}
} // namespace

HWND makeTextWithLinks(const CREATESTRUCTW&, QWidget* parent)
{
    auto* label = new LinkLabel(parent);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    HWND window = attachHandle(label, WC_LINK, std::make_unique<TextWithLinks>());
    label->links = static_cast<TextWithLinks*>(window->behaviour.get());
    QObject::connect(label, &QLabel::linkActivated, window, [window](const QString& index) {
        static_cast<TextWithLinks*>(window->behaviour.get())->click(window, index.toInt());
    });
    return window;
}

bool followLink(HWND window, const std::wstring& address)
{
    auto* links = isLive(window) ? dynamic_cast<TextWithLinks*>(window->behaviour.get()) : nullptr;
    const auto index = links ? links->addresses.indexOf(QString::fromStdWString(address)) : -1;
    if (index < 0)
        return false;
    links->click(window, static_cast<int>(index));
    return true;
}

HWND makeWebLink(const CREATESTRUCTW&, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setProperty("webLink", true);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    HWND window = attachHandle(button, L"MfcLink", std::make_unique<WebLink>());
    QObject::connect(button, &QPushButton::clicked, window,
                     [window] { static_cast<WebLink*>(window->behaviour.get())->click(window); });
    return window;
}

void setLinkAddress(HWND window, const std::wstring& address)
{
    if (WebLink* link = webLink(window))
        link->address = address;
}

void setLinkPrefix(HWND window, const std::wstring& prefix)
{
    if (WebLink* link = webLink(window))
        link->prefix = prefix;
}

std::wstring linkAddress(HWND window)
{
    WebLink* link = webLink(window);
    return link ? link->address : std::wstring();
}
} // namespace orvplatform
