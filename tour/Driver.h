#pragma once

#include "host/orv/IDocument.h"
#include "tour/PaneControls.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orvviewer
{
class CommandContext;
class ViewerSession;
} // namespace orvviewer

namespace orvtour
{

/// A user's day with the system in verbs: each does with the real widgets what a user's hands would do. A verb that
/// answers bool says false where a user could not have done it. Modal dialogs are expected; one that isn't is a
/// failure.
class Driver
{
public:
    using Failure = std::function<void(std::string const&)>;

    struct Options {
        std::wstring dataDirectory;    ///< the viewer's data
        std::wstring libraryDirectory; ///< plug-in and exporters
        std::wstring serviceUrl;
        std::wstring language = L"en";
        Failure failure;                          ///< told of unexpected dialogs
        std::function<void(QString const&)> step; ///< told, with a name, when a picture is worth taking; may be empty
    };

    explicit Driver(Options options);
    ~Driver(); ///< closes the viewer

    /// Shows the window and waits until it has been drawn.
    bool showWindow();
    bool openModel(std::wstring const& path);

    /// Presses the button of the prompt in the pane and signs in through the dialog that opens.
    bool signIn(QString const& email, QString const& password);
    /// The same, but the dialog is left by Escape after the attempt; `stillOpen` tells whether it had stayed open and
    /// `typed` what stood in the e-mail box then.
    bool trySignIn(QString const& email, QString const& password, bool& stillOpen, QString& typed);
    /// Opens the options and presses the button of the account page.
    bool signOut();
    /// Activates the tab of the pane, as a click on it does.
    void activateFeeds();

    bool hasPrompt() const;     ///< the pane asks to sign in
    bool hasCommentBox() const; ///< the pane takes a comment
    bool typeComment(QString const& text);
    QString typedComment() const;
    bool submitComment();
    std::vector<BlockOnShow> blocks() const;
    /// Clicks on a block, counted from the top.
    bool clickBlock(std::size_t index);
    QString paneTitle() const;

    QString status() const;
    std::shared_ptr<orv::IDocument> document() const;
    orvviewer::CommandContext& context();
    orvviewer::ViewerSession& session() { return *viewer; }

    /// What the view shows on the screen, pixel by pixel.
    QImage viewPicture() const;
    /// The whole window with whatever lies over it.
    QImage screenPicture() const;

private:
    QWidget& window() const;
    void step(QString const& name) const;
    /// Presses the prompt's button, fills the dialog that opens and logs in; `then` sees the dialog after that.
    bool logIn(QString const& email, QString const& password, std::function<void(CWnd&)> const& then) const;

    Options options;
    std::unique_ptr<orvviewer::ViewerSession> viewer;
};

/// The share of pixels that differ visibly (by more than 24 of 255 in a channel), 0 to 1; 1 for pictures of different
/// size.
double pictureDifference(QImage const& a, QImage const& b);

} // namespace orvtour
