#include "viewer/app/SessionState.h"

#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "platform/qt/Native.h"
#include "viewer/app/CommandMenus.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/OptionsSheet.h"
#include "viewer/app/StartPage.h"
#include "viewer/app/StatusLine.h"
#include "viewer/commands/PartCommands.h"
#include "viewer/commands/ViewCommands.h"
#include "viewer/scene/SceneDisplay.h"

namespace orvviewer
{

void ViewerSession::State::makeRibbon()
{
    Ribbon::Hooks hooks;
    hooks.runOther = [this](UINT id) { return plugins->run(id); };
    hooks.isOtherEnabled = [this](UINT id) { return plugins->isEnabled(id); };
    hooks.menuOf = [this](UINT id) { return menuOf(id); };
    ribbon = std::make_unique<Ribbon>(window.get(), *commands, std::move(hooks));
    plugins->addToRibbon(ribbon->handle());
    window->setRibbon(ribbon->widget());
}

void ViewerSession::State::makeSideBar()
{
    auto const guard = [wall = barrier](std::function<void()> const& call) { wall->run(call); };
    sideBar = std::make_unique<SideBar>(guard, [this](std::wstring const& title) { plugins->tabActivated(title); });
    sideBar->Create(L"", orvplatform::windowOf(window.get()), RECT{0, 0, 320, 600}, 0xE810, WS_CHILD | WS_VISIBLE);
    plugins->addToSideBar(sideBar->GetSafeHwnd());
    window->setSideBar(orvplatform::widgetOf(sideBar->GetSafeHwnd()));
    window->showSideBar(sideBar->paneCount() > 0);
}

QMenu* ViewerSession::State::menuOf(unsigned int id) const
{
    switch (id) {
    case colourParts:
        return colourMenu;
    case transparentParts:
        return transparencyMenu;
    case recentFiles:
        return recentMenu;
    default:
        return nullptr;
    }
}

std::vector<FocusPlace> ViewerSession::State::focusPlaces()
{
    auto& view = window->view();
    QWidget& middle = openDocument ? static_cast<QWidget&>(view) : window->startPage();
    return {
        placeOf(window->tree()),
        placeOf(middle),
        {[this] { return orvplatform::hasSideBarFocus(*sideBar); },
         [this] { return window->isSideBarShown() && orvplatform::focusSideBar(*sideBar); }},
        {[this] { return ribbon->widget()->isAncestorOf(QApplication::focusWidget()); },
         [this] { return ribbon->takeFocus(); }},
    };
}

void ViewerSession::State::connectWindow()
{
    auto* frame = window.get();
    auto& view = window->view();
    auto& tree = window->tree();
    colourMenu = makeColourMenu(
        frame, [this](unsigned long colour) { colourNodes(*this, selectedNodes, colour); },
        [this] { uncolourNodes(*this, selectedNodes); });
    transparencyMenu = makeTransparencyMenu(frame, [this](float part) { makeTransparent(*this, selectedNodes, part); });
    recentMenu = makeRecentMenu(frame, recent, [this](std::wstring const& path) { openModel(path); });
    // Another viewer of the same user may open models meanwhile.
    if (auto const folder = RecentFiles::folder(); !folder.empty()) {
        recentWatch.addPath(QString::fromStdWString(folder));
    }
    QObject::connect(&recentWatch, &QFileSystemWatcher::directoryChanged, frame, [this] {
        if (recent.refresh() && !openDocument) {
            window->startPage().showRecent(recent);
        }
    });
    movePanel =
        new MovePanel(frame, [this](double x, double y, double z) { moveNodes(*this, selectedNodes, x, y, z); });

    QObject::connect(&window->startPage(), &StartPage::openWanted, frame, [this] { askForModel(); });
    QObject::connect(&window->startPage(), &StartPage::fileWanted, frame,
                     [this](std::wstring const& path) { openModel(path); });
    QObject::connect(&view, &ModelView::picked, frame, [this](int node, bool extend) {
        auto nodes = extend ? selectedNodes : std::set<int>();
        if (node >= 0 && !nodes.erase(node)) {
            nodes.insert(node);
        }
        select(nodes);
    });
    QObject::connect(&view, &ModelView::opened, frame,
                     [this](int node) { node >= 0 ? fitNodes(*this, {node}) : fitView(*this); });
    QObject::connect(&view, &ModelView::sideChosen, frame,
                     [this](double x, double y, double z) { lookAlong(*this, x, y, z); });
    QObject::connect(&view, &ModelView::cameraMoved, frame, [this] { raise(orv::HintCode::viewChanged); });
    QObject::connect(&view, &ModelView::menuRequested, frame,
                     [this](QPoint const& at, int node) { showPartMenu(at, node); });
    QObject::connect(&view, &ModelView::filesDropped, frame, [this](QStringList const& paths) {
        if (!paths.isEmpty()) {
            openModel(paths.front().toStdWString());
        }
    });
    QObject::connect(&tree, &ModelTree::selectionWanted, frame, [this](std::set<int> const& nodes) { select(nodes); });
    QObject::connect(&tree, &ModelTree::visibilityWanted, frame,
                     [this](int node, bool visible) { visible ? showNodes(*this, {node}) : hideNodes(*this, {node}); });
    QObject::connect(&tree, &ModelTree::opened, frame, [this](int node) { fitNodes(*this, {node}); });
    QObject::connect(&tree, &ModelTree::menuRequested, frame,
                     [this](QPoint const& at, int node) { showPartMenu(at, node); });
}

void ViewerSession::State::showPartMenu(QPoint const& globalPosition, int node)
{
    if (node >= 0 && !selectedNodes.contains(node)) {
        select({node});
    }
    commands->refresh();
    QMenu menu(window.get());
    for (unsigned int const id : {hideParts, isolateParts, showAllParts}) {
        menu.addAction(commands->action(id));
    }
    menu.addSeparator();
    for (unsigned int const id : {colourParts, transparentParts}) {
        auto* entry = menu.addMenu(commands->action(id)->icon(), commands->action(id)->text());
        entry->addActions(menuOf(id)->actions());
        entry->setEnabled(commands->isEnabled(id));
    }
    menu.addAction(commands->action(moveParts));
    menu.addAction(commands->action(resetParts));
    menu.addSeparator();
    menu.addAction(commands->action(fitSelection));
    menu.addAction(commands->action(fitAll));
    menu.exec(globalPosition);
}

void ViewerSession::State::follow(orv::IHint& hint)
{
    if (!openDocument || hint.getDocument() != openDocument) {
        return;
    }
    switch (hint.getCode()) {
    case orv::HintCode::selectionChanged:
        if (display) {
            display->setSelection(selectedNodes);
        }
        window->tree().showSelection(selectedNodes);
        showFacts();
        commands->refresh();
        ribbon->refresh();
        window->view().redrawNow();
        break;
    case orv::HintCode::viewChanged:
        if (display) {
            display->applyCamera();
        }
        window->view().redrawNow();
        break;
    case orv::HintCode::documentOpened:
    case orv::HintCode::documentChanged:
    case orv::HintCode::visibilityChanged:
    case orv::HintCode::appearanceChanged:
    case orv::HintCode::sceneChanged:
    case orv::HintCode::viewRestored:
        if (display) {
            display->sync();
            display->applyCamera();
        }
        window->tree().visibilityChanged();
        window->view().redrawNow();
        break;
    default:
        break;
    }
}

void ViewerSession::State::showFacts()
{
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(openDocument);
    auto const resources = orv::recordOf<orvsg::SCSceneRes>(openDocument);
    if (!topology || !resources) {
        window->status().showFacts(QObject::tr("No model"));
        return;
    }
    qsizetype parts = 0;
    qsizetype triangles = 0;
    for (auto const& node : topology->nodes) {
        if (node.mesh >= 0) {
            ++parts;
            triangles +=
                static_cast<qsizetype>(resources->meshes[static_cast<std::size_t>(node.mesh)]->triangles.size()) / 3;
        }
    }
    auto text = QObject::tr("%Ln part(s)", nullptr, static_cast<int>(parts)) + "   " +
                QObject::tr("%Ln triangle(s)", nullptr, static_cast<int>(triangles));
    if (selectedNodes.size() == 1) {
        text += "   " + QString::fromStdWString(topology->nodes.getValue(*selectedNodes.begin()).name);
    } else if (!selectedNodes.empty()) {
        text += "   " + QObject::tr("%Ln selected", nullptr, static_cast<int>(selectedNodes.size()));
    }
    window->status().showFacts(text);
}

void ViewerSession::State::openOptions()
{
    OptionsSheet sheet(
        orvplatform::windowOf(window.get()), preferences, [this](HWND handle) { plugins->addToOptions(handle); },
        [this](ViewerPreferences const& changed) {
            changed.save();
            applyPreferences(changed);
        });
    sheet.DoModal();
}

void ViewerSession::State::applyPreferences(ViewerPreferences const& changed)
{
    preferences = changed;
    window->showTree(preferences.showTree);
    if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(openDocument)) {
        renderer->settings.showAxisCross = preferences.showAxisCross;
        renderer->settings.showViewCube = preferences.showViewCube;
        raise(orv::HintCode::viewChanged);
    }
}

} // namespace orvviewer
