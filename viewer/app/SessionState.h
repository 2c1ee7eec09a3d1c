#pragma once

#include "host/orv/Document.h"
#include "host/runtime/IFrameRenderer.h"
#include "viewer/app/Barrier.h"
#include "viewer/app/CommandTable.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/FocusRound.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/MovePanel.h"
#include "viewer/app/Preferences.h"
#include "viewer/app/RecentFiles.h"
#include "viewer/app/Ribbon.h"
#include "viewer/app/ViewNotifier.h"
#include "viewer/app/ViewerApplication.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/plugins/PluginHost.h"
#include "viewer/plugins/SideBar.h"
#include "viewer/scene/SceneDisplay.h"

#include <QFileSystemWatcher>
#include <QImage>
#include <QTimer>

namespace orvviewer
{

/// The inside of a session. Members are destroyed from the last to the first: the plug-ins' windows before the
/// plug-ins, those before the window and what they report to.
struct ViewerSession::State final : CommandContext {
    explicit State(orvhost::Settings settings);
    ~State() override;

    std::shared_ptr<orv::IDocument> document() const override { return openDocument; }
    std::set<int> const& selection() const override { return selectedNodes; }
    void select(std::set<int> const& nodes) override;
    void showStatus(std::wstring const& sentence) override;
    void raise(short hintCode) override;
    double pictureAspect() const override;

    void makeDisplay();
    void makeApplication();
    void addCommands();
    void makeRibbon();
    void makeSideBar();
    void connectWindow();
    void follow(orv::IHint& hint); ///< what the viewer's own windows do on a hint
    void showFacts();
    void showDocument(std::shared_ptr<orv::Document> const& document);
    bool openModel(std::wstring const& path);
    void closeModel();
    bool exportModel(std::wstring const& path);
    ExportResult exportWithProgress(std::wstring const& path); ///< shows the exporter's course
    QImage picture(int width, int height);
    void savePreview();
    bool savePicture(std::wstring const& path, int width, int height);
    bool runCommand(unsigned int id);

    void askForModel();
    void askForExport();
    void askForPicture();
    void startMove();
    void openOptions();
    void applyPreferences(ViewerPreferences const& changed);
    void showPartMenu(QPoint const& globalPosition, int node);
    QMenu* menuOf(unsigned int id) const;
    std::vector<FocusPlace> focusPlaces(); ///< model tree, view or start page, side bar, ribbon

    std::shared_ptr<orv::IDocument> openDocument;
    std::set<int> selectedNodes;
    bool isOpening = false;
    std::wstring pluginProblems; ///< sentences, each after a blank; empty once they were said with a model
    ViewerPreferences preferences;
    RecentFiles recent;
    QFileSystemWatcher recentWatch; ///< on the folder of `recent`
    std::shared_ptr<Barrier> barrier;
    std::shared_ptr<ViewNotifier> notifier;
    std::shared_ptr<SceneDisplay> display; ///< null where nothing can be drawn
    std::shared_ptr<orvhost::IFrameRenderer> earlierRenderer;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<CommandTable> commands;
    QMenu* colourMenu = nullptr; ///< the window's, as the next two
    QMenu* transparencyMenu = nullptr;
    QMenu* recentMenu = nullptr;
    MovePanel* movePanel = nullptr;
    std::shared_ptr<ViewerApplication> application;
    std::unique_ptr<PluginHost> plugins;
    std::unique_ptr<Ribbon> ribbon;
    std::unique_ptr<SideBar> sideBar;
    QTimer idle;
};

} // namespace orvviewer
