#include "tour/Driver.h"

#include "platform/qt/Native.h"
#include "platform/testing/Input.h"
#include "platform/testing/ModalExpectation.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/commands/CommandId.h"
#include "viewer/plugins/SideBar.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace orvtour
{

namespace input = orvplatform::testing;

namespace
{
constexpr int patience = 60000; // milliseconds; only a failure waits this long
} // namespace

Driver::Driver(Options given) : options(std::move(given))
{
    orvhost::Settings settings;
    settings.dataDirectory = options.dataDirectory;
    settings.libraryDirectory = options.libraryDirectory;
    settings.serviceUrl = options.serviceUrl;
    settings.language = options.language;
    viewer = std::make_unique<orvviewer::ViewerSession>(settings);
}

Driver::~Driver() = default;

QWidget& Driver::window() const
{
    return viewer->window();
}

void Driver::step(QString const& name) const
{
    if (options.step) {
        input::processEvents();
        options.step(name);
    }
}

bool Driver::showWindow()
{
    window().resize(1440, 900);
    window().move(0, 0);
    window().show();
    return input::waitFor([this] { return window().windowHandle() != nullptr && window().windowHandle()->isExposed(); },
                          patience);
}

bool Driver::openModel(std::wstring const& path)
{
    bool const opened = viewer->openModel(path);
    input::processEvents();
    step("model-opened");
    return opened;
}

bool Driver::logIn(QString const& email, QString const& password, std::function<void(CWnd&)> const& then) const
{
    CWnd* const prompt = dialogWith(window(), control::prompt);
    if (prompt == nullptr) {
        return false;
    }
    bool done = false;
    input::ModalScript script(options.failure);
    script.expectModal<CDialog>([&](CDialog& dialog) {
        bool const typed = input::typeText(dialog, control::email, email.toStdWString()) &&
                           input::typeText(dialog, control::password, password.toStdWString());
        step("login-dialog");
        done = typed && input::clickButton(dialog, control::login);
        then(dialog);
        return IDCANCEL;
    });
    return input::clickButton(*prompt, control::prompt) && done;
}

bool Driver::signIn(QString const& email, QString const& password)
{
    bool const done = logIn(email, password, [](CWnd&) {});
    input::processEvents();
    step("signed-in");
    return done;
}

bool Driver::trySignIn(QString const& email, QString const& password, bool& stillOpen, QString& typed)
{
    return logIn(email, password, [&](CWnd& dialog) {
        stillOpen = dialog.GetSafeHwnd() != nullptr && dialog.IsWindowVisible();
        typed = QString::fromStdWString(input::textOf(dialog, control::email));
    });
}

bool Driver::signOut()
{
    bool done = false;
    input::ModalScript script(options.failure);
    script.expectModal<CPropertySheet>([&](CPropertySheet& sheet) {
        sheet.SetActivePage(sheet.GetPageCount() - 1);
        input::processEvents();
        step("account-page");
        CWnd* const page = dialogWith(*orvplatform::widgetOf(sheet.GetSafeHwnd()), control::accountAction);
        done = page != nullptr && input::clickButton(*page, control::accountAction);
        step("account-page-signed-out");
        return IDCANCEL;
    });
    bool const opened = viewer->runCommand(orvviewer::showOptions);
    input::processEvents();
    step("signed-out");
    return opened && done;
}

void Driver::activateFeeds()
{
    viewer->sideBar().announceActiveTab();
    input::processEvents();
}

bool Driver::hasPrompt() const
{
    return dialogWith(window(), control::prompt) != nullptr;
}

bool Driver::hasCommentBox() const
{
    return dialogWith(window(), control::submit) != nullptr;
}

bool Driver::typeComment(QString const& text)
{
    CWnd* const box = dialogWith(window(), control::submit);
    bool const typed = box != nullptr && input::typeText(*box, control::comment, text.toStdWString());
    step("comment-typed");
    return typed;
}

QString Driver::typedComment() const
{
    CWnd* const box = dialogWith(window(), control::submit);
    return box == nullptr ? QString() : QString::fromStdWString(input::textOf(*box, control::comment));
}

bool Driver::submitComment()
{
    CWnd* const box = dialogWith(window(), control::submit);
    bool const pressed = box != nullptr && input::clickButton(*box, control::submit);
    input::processEvents();
    step("comment-submitted");
    return pressed;
}

std::vector<BlockOnShow> Driver::blocks() const
{
    return blocksOnShow(window());
}

bool Driver::clickBlock(std::size_t index)
{
    auto const shown = blocks();
    if (index >= shown.size()) {
        return false;
    }
    // The picture: what a user aims at.
    bool const clicked = input::clickAt(*shown[index].dialog, 60, 60);
    input::processEvents();
    step("view-restored");
    return clicked;
}

QString Driver::paneTitle() const
{
    // The nearest window around the pane that has a text is the frame behind the tab, and its text the tab's title.
    CString title;
    for (CWnd* around = dialogWith(window(), control::push); around != nullptr && title.IsEmpty();
         around = around->GetParent()) {
        around->GetWindowTextW(title);
    }
    return QString::fromStdWString(std::wstring(title.GetString()));
}

QString Driver::status() const
{
    return QString::fromStdWString(viewer->statusText());
}

std::shared_ptr<orv::IDocument> Driver::document() const
{
    return viewer->document();
}

orvviewer::CommandContext& Driver::context()
{
    return viewer->context();
}

QImage Driver::viewPicture() const
{
    input::processEvents();
    auto& view = viewer->window().view();
    view.redrawNow();
    QScreen* const screen = window().screen();
    QPoint const corner = view.mapToGlobal(QPoint());
    return screen->grabWindow(0, corner.x(), corner.y(), view.width(), view.height()).toImage();
}

QImage Driver::screenPicture() const
{
    input::processEvents();
    QScreen* const screen = window().screen();
    QPoint const corner = window().mapToGlobal(QPoint());
    return screen->grabWindow(0, corner.x(), corner.y(), window().width(), window().height()).toImage();
}

double pictureDifference(QImage const& a, QImage const& b)
{
    if (a.size() != b.size() || a.isNull()) {
        return 1.0;
    }
    constexpr int visible = 24;
    auto const differs = [](QRgb p, QRgb q) {
        return std::abs(qRed(p) - qRed(q)) > visible || std::abs(qGreen(p) - qGreen(q)) > visible ||
               std::abs(qBlue(p) - qBlue(q)) > visible;
    };
    qint64 count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += differs(a.pixel(x, y), b.pixel(x, y)) ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (static_cast<double>(a.width()) * a.height());
}

} // namespace orvtour
