#pragma once

#include "host/orv/IApplication.h"
#include "host/orv/IDocument.h"
#include "host/runtime/Runtime.h"
#include "viewer/commands/CommandContext.h"

#include <memory>
#include <set>
#include <string>

class CMFCRibbonBar;

namespace orvviewer
{

class CommandTable;
class MainWindow;
class PluginHost;
class SideBar;

/// One viewer: window, document, plug-ins. Everything of it ends with it, so several may follow one another in one
/// process. Needs a QApplication.
class ViewerSession
{
public:
    /// Takes the settings over, makes the window (not shown yet) and loads the plug-ins from the library directory.
    explicit ViewerSession(orvhost::Settings settings);
    ~ViewerSession();
    ViewerSession(ViewerSession const&) = delete;
    ViewerSession& operator=(ViewerSession const&) = delete;

    /// Opens a model in place of the open one and returns when it is there. False, with a sentence in the status line
    /// and the earlier model still open, where that doesn't work.
    bool openModel(std::wstring const& path);
    void closeModel();
    /// Writes the open model in the format of the extension; tells the outcome in the status line.
    bool exportModel(std::wstring const& path);
    /// Writes a picture of the view; width and height in pixels.
    bool savePicture(std::wstring const& path, int width, int height);

    std::shared_ptr<orv::IDocument> document() const; ///< empty while no model is open
    MainWindow& window();
    CommandContext& context(); ///< what the functions of viewer/commands work on
    CommandTable& commands();  ///< the viewer's own commands by number
    PluginHost& plugins();
    SideBar& sideBar();
    CMFCRibbonBar& ribbonBar();
    std::shared_ptr<orv::IApplication> application();
    std::wstring statusText() const; ///< the sentence in the status line
    bool canDraw() const;            ///< there is a display with OpenGL
    /// Presses a ribbon button, the viewer's or a plug-in's, by its command number. False where it isn't enabled.
    bool runCommand(unsigned int id);

private:
    struct State;
    std::unique_ptr<State> state;
};

} // namespace orvviewer
