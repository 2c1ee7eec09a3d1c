#include "viewer/app/SessionState.h"

#include "host/orv/FilePath.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneTopo.h"
#include "viewer/app/CommandMenus.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/import/FileKind.h"

#include <QCursor>

#include <afxdlgs.h>

#include <algorithm>
#include <cmath>
#include <cwctype>

namespace orvviewer
{

namespace
{

constexpr double zoomStep = 1.25;

std::wstring patterns(std::vector<std::wstring> const& extensions)
{
    std::wstring text;
    for (auto const& extension : extensions) {
        text += (text.empty() ? L"*." : L";*.") + extension;
    }
    return text;
}

} // namespace

void ViewerSession::State::addCommands()
{
    auto const hasModel = [this] { return openDocument != nullptr; };
    auto const hasSelection = [this] { return openDocument != nullptr && !selectedNodes.empty(); };
    auto const hasRecent = [this] { return !recent.isEmpty(); };
    auto const add = [this](CommandId id, CommandTable::Command command) {
        commands->add(id, std::move(command), window.get());
    };
    auto const side = [this](StandardView view) { return [this, view] { lookFromSide(*this, view); }; };
    auto const key = [](QKeyCombination keys) { return QKeySequence(keys); };
    auto const tr = [](char const* text) { return QObject::tr(text); };

    add(openFile, {tr("Open"), tr("Open a model"), "open", QKeySequence::Open, [this] { askForModel(); }, {}, {}});
    add(recentFiles, {tr("Recent"),
                      tr("Open one of the models opened last"),
                      "recent",
                      {},
                      [this] { recentMenu->popup(QCursor::pos()); },
                      hasRecent,
                      {}});
    add(closeFile, {tr("Close"),
                    tr("Close the model"),
                    "close",
                    key(Qt::CTRL | Qt::Key_W),
                    [this] { closeModel(); },
                    hasModel,
                    {}});
    add(exportFile, {tr("Export"),
                     tr("Save the model in another format"),
                     "export",
                     key(Qt::CTRL | Qt::Key_E),
                     [this] { askForExport(); },
                     hasModel,
                     {}});
    add(saveViewPicture, {tr("Picture"),
                          tr("Save a picture of the view"),
                          "screenshot",
                          key(Qt::CTRL | Qt::Key_P),
                          [this] { askForPicture(); },
                          [this] { return openDocument != nullptr && display != nullptr; },
                          {}});

    add(fitAll,
        {tr("Fit"), tr("Show the whole model"), "fit", key(Qt::Key_F), [this] { fitView(*this); }, hasModel, {}});
    add(fitSelection, {tr("Fit selection"),
                       tr("Show the selected parts"),
                       "fit",
                       key(Qt::SHIFT | Qt::Key_F),
                       [this] { fitNodes(*this, selectedNodes); },
                       hasSelection,
                       {}});
    add(zoomIn, {tr("Zoom in"),
                 tr("Bring the model nearer"),
                 "zoom-in",
                 QKeySequence::ZoomIn,
                 [this] { zoomView(*this, 1.0 / zoomStep); },
                 hasModel,
                 {}});
    add(zoomOut, {tr("Zoom out"),
                  tr("Move the model away"),
                  "zoom-out",
                  QKeySequence::ZoomOut,
                  [this] { zoomView(*this, zoomStep); },
                  hasModel,
                  {}});
    add(togglePerspective, {tr("Perspective"), tr("Change between perspective and parallel projection"), "perspective",
                            key(Qt::Key_P), [this] { setOrthographic(*this, !isOrthographic(*this)); }, hasModel,
                            [this] { return openDocument != nullptr && !isOrthographic(*this); }});

    add(viewFront, {tr("Front"),
                    tr("Look from the front"),
                    "view-front",
                    key(Qt::CTRL | Qt::Key_1),
                    side(StandardView::front),
                    hasModel,
                    {}});
    add(viewBack, {tr("Back"),
                   tr("Look from the back"),
                   "view-back",
                   key(Qt::CTRL | Qt::Key_2),
                   side(StandardView::back),
                   hasModel,
                   {}});
    add(viewLeft, {tr("Left"),
                   tr("Look from the left"),
                   "view-left",
                   key(Qt::CTRL | Qt::Key_3),
                   side(StandardView::left),
                   hasModel,
                   {}});
    add(viewRight, {tr("Right"),
                    tr("Look from the right"),
                    "view-right",
                    key(Qt::CTRL | Qt::Key_4),
                    side(StandardView::right),
                    hasModel,
                    {}});
    add(viewTop, {tr("Top"),
                  tr("Look from the top"),
                  "view-top",
                  key(Qt::CTRL | Qt::Key_5),
                  side(StandardView::top),
                  hasModel,
                  {}});
    add(viewBottom, {tr("Bottom"),
                     tr("Look from below"),
                     "view-bottom",
                     key(Qt::CTRL | Qt::Key_6),
                     side(StandardView::bottom),
                     hasModel,
                     {}});
    add(viewIsometric, {tr("Isometric"),
                        tr("Look from a corner"),
                        "view-iso",
                        key(Qt::CTRL | Qt::Key_7),
                        side(StandardView::isometric),
                        hasModel,
                        {}});

    add(hideParts, {tr("Hide"),
                    tr("Hide the selected parts"),
                    "hide",
                    key(Qt::Key_H),
                    [this] { hideNodes(*this, selectedNodes); },
                    hasSelection,
                    {}});
    add(isolateParts, {tr("Isolate"),
                       tr("Show nothing but the selected parts"),
                       "isolate",
                       key(Qt::Key_I),
                       [this] { isolateNodes(*this, selectedNodes); },
                       hasSelection,
                       {}});
    add(showAllParts, {tr("Show all"),
                       tr("Show all parts"),
                       "show-all",
                       key(Qt::SHIFT | Qt::Key_H),
                       [this] { showAllNodes(*this); },
                       hasModel,
                       {}});
    add(colourParts, {tr("Colour"),
                      tr("Colour the selected parts"),
                      "colour",
                      key(Qt::Key_C),
                      [this] { colourMenu->popup(QCursor::pos()); },
                      hasSelection,
                      {}});
    add(transparentParts, {tr("Transparency"),
                           tr("Make the selected parts transparent"),
                           "transparency",
                           key(Qt::Key_T),
                           [this] { transparencyMenu->popup(QCursor::pos()); },
                           hasSelection,
                           {}});
    add(moveParts,
        {tr("Move"), tr("Move the selected parts"), "move", key(Qt::Key_M), [this] { startMove(); }, hasSelection, {}});
    add(resetParts, {tr("Reset"),
                     tr("Undo all hiding, colouring, transparency and moving"),
                     "reset",
                     key(Qt::CTRL | Qt::Key_R),
                     [this] { resetNodes(*this); },
                     hasModel,
                     {}});
    add(selectAllParts, {tr("Select all"),
                         tr("Select the whole model"),
                         "select",
                         QKeySequence::SelectAll,
                         [this] { select({0}); },
                         hasModel,
                         {}});
    add(selectNoParts, {tr("Select nothing"),
                        tr("Clear the selection"),
                        "select",
                        key(Qt::Key_Escape),
                        [this] { select({}); },
                        hasSelection,
                        {}});

    add(showOptions, {tr("Options"),
                      tr("Change the options"),
                      "options",
                      key(Qt::CTRL | Qt::Key_Comma),
                      [this] { openOptions(); },
                      {},
                      {}});
    add(toggleTree, {tr("Model tree"),
                     tr("Show or hide the model tree"),
                     {},
                     key(Qt::Key_F8),
                     [this] {
                         preferences.showTree = !window->isTreeShown();
                         preferences.save();
                         window->showTree(preferences.showTree);
                     },
                     {},
                     [this] { return window->isTreeShown(); }});
    add(toggleSideBar, {tr("Side bar"),
                        tr("Show or hide the side bar"),
                        {},
                        key(Qt::Key_F9),
                        [this] { window->showSideBar(!window->isSideBarShown()); },
                        [this] { return sideBar != nullptr && sideBar->paneCount() > 0; },
                        [this] { return window->isSideBarShown(); }});
    add(nextPane, {tr("Next pane"),
                   tr("Go round from the model tree to the view, the side bar and the ribbon"),
                   {},
                   key(Qt::Key_F6),
                   [this] { goRound(focusPlaces(), 1); },
                   {},
                   {}});
    add(previousPane, {tr("Previous pane"),
                       tr("Go round the other way"),
                       {},
                       key(Qt::SHIFT | Qt::Key_F6),
                       [this] { goRound(focusPlaces(), -1); },
                       {},
                       {}});
}

void ViewerSession::State::askForModel()
{
    auto const filter = QObject::tr("Models").toStdWString() + L"|" + patterns(readableExtensions()) +
                        L"|STEP|*.step;*.stp;*.p21|IGES|*.iges;*.igs|" +
                        L"BREP|*.brep;*.brp|STL|*.stl|OBJ|*.obj|glTF|*.gltf;*.glb|Orvanta|*.orvanta||";
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, filter.c_str());
    if (dialog.DoModal() == IDOK) {
        openModel(static_cast<wchar_t const*>(dialog.GetPathName()));
    }
}

void ViewerSession::State::askForExport()
{
    auto const extensions = writableExtensions();
    if (extensions.empty()) {
        showStatus(L"No exporter is installed. Install Orvanta again and start it anew.");
        return;
    }
    std::wstring filter;
    for (auto const& extension : extensions) {
        std::wstring upper = extension;
        std::transform(upper.begin(), upper.end(), upper.begin(),
                       [](wchar_t c) { return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c))); });
        filter += upper + L" (*." + extension + L")|*." + extension + L"|";
    }
    auto const info = orv::recordOf<orvsg::SCInfo>(openDocument);
    auto const name = orv::FilePath(info->file()).getFName() + L"." + extensions.front();
    CFileDialog dialog(FALSE, extensions.front().c_str(), name.c_str(), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       (filter + L"|").c_str());
    if (dialog.DoModal() == IDOK) {
        exportModel(static_cast<wchar_t const*>(dialog.GetPathName()));
    }
}

void ViewerSession::State::askForPicture()
{
    auto const info = orv::recordOf<orvsg::SCInfo>(openDocument);
    auto const name = orv::FilePath(info->file()).getFName() + L".png";
    CFileDialog dialog(FALSE, L"png", name.c_str(), OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       L"PNG (*.png)|*.png|JPEG (*.jpg)|*.jpg||");
    if (dialog.DoModal() == IDOK) {
        savePicture(static_cast<wchar_t const*>(dialog.GetPathName()), window->view().width(), window->view().height());
    }
}

void ViewerSession::State::startMove()
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(openDocument);
    auto const what = selectedNodes.size() == 1
                          ? QString::fromStdWString(topology->nodes.getValue(*selectedNodes.begin()).name)
                          : QObject::tr("%Ln part(s)", nullptr, static_cast<int>(selectedNodes.size()));
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(openDocument);
    // An arrow moves by a round fraction of the model's size.
    double const step = std::pow(10.0, std::floor(std::log10(std::max(renderer->camera->radius, 0.01F) / 5.0)));
    auto const& view = window->view();
    movePanel->move(view.mapToGlobal(QPoint(16, 16)));
    movePanel->start(what, step);
}

} // namespace orvviewer
