#include "viewer/app/SessionState.h"

#include "host/orv/FileUtils.h"
#include "host/orv/IPlugin.h"
#include "host/orv/SCApplication.h"
#include "host/orvexp/IDelayExporter.h"
#include "host/orvgl/SCRenderer.h"
#include "host/orvsg/SCInfo.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/orvui/Hint.h"
#include "platform/Process.h"
#include "platform/qt/Native.h"
#include "viewer/app/Exporting.h"
#include "viewer/app/FrameRenderer.h"
#include "viewer/app/Language.h"
#include "viewer/app/ModelLoading.h"
#include "viewer/app/ModelTree.h"
#include "viewer/app/ModelView.h"
#include "viewer/app/StartPage.h"
#include "viewer/app/StatusLine.h"
#include "viewer/commands/ViewCommands.h"

#include <QGuiApplication>

#include <afxwin.h>

#include <utility>

// The pictures are in a static library, so they have to be asked for; the macro works outside of namespaces alone.
static void loadPictures()
{
    Q_INIT_RESOURCE(viewer);
}

namespace orvviewer
{

namespace
{

constexpr int idleInterval = 250; ///< milliseconds between two looks at what is enabled
constexpr int previewSide = 256;  ///< pixels

/// The connection to the display that the toolkit has; null where it has none.
void* displayOfToolkit()
{
    auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native != nullptr ? native->display() : nullptr;
}

void linkTo(std::shared_ptr<orv::IApplication> application, orv::Document& document)
{
    auto link = std::make_shared<orv::SCApplication>();
    link->application = std::move(application);
    document.setSchema(orv::SCApplication::key, std::move(link));
}

/// A document without a file or a scene: what plug-ins hold until the first model. The viewer itself has none then.
std::shared_ptr<orv::Document> makeStartDocument(std::shared_ptr<orv::IApplication> application)
{
    auto document = std::make_shared<orv::Document>();
    document->setSchema(orvsg::SCInfo::key, std::make_shared<orvsg::SCInfo>());
    linkTo(std::move(application), *document);
    return document;
}

} // namespace

ViewerSession::State::State(orvhost::Settings settings)
{
    loadPictures();
    auto const asked = settings.language;
    orvhost::configure(settings); // the preferences are found by it
    preferences = ViewerPreferences::load();
    settings.language = chooseLanguage(asked, preferences.language);
    useViewerLanguage(settings.language);
    orvhost::configure(std::move(settings));
    barrier = std::make_shared<Barrier>([this](std::wstring const& sentence) { showStatus(sentence); });
    notifier = std::make_shared<ViewNotifier>(barrier);
    window = std::make_unique<MainWindow>();
    orvplatform::setMainWindow(window.get());
    orvplatform::setExceptionHandler([wall = barrier](std::string const& what) { wall->caught(what); });
    makeDisplay();
    makeApplication();
    commands = std::make_unique<CommandTable>();
    addCommands();
    connectWindow();
    notifier->add(this, [this](orv::IHint* hint) { follow(*hint); });
    plugins = std::make_unique<PluginHost>(PluginHost::Services{barrier, notifier, application,
                                                                [this](std::wstring const& sentence) {
                                                                    pluginProblems +=
                                                                        L" " + localizedSentence(sentence);
                                                                    showStatus(sentence);
                                                                },
                                                                orvplatform::handleOf(window.get())});
    plugins->loadAll(orv::IPlugin::getPluginPath(nullptr, orv::IPlugin::guiPlugin));
    makeRibbon();
    makeSideBar();
    applyPreferences(preferences);
    showFacts();
    window->startPage().showRecent(recent);
    // Panes build themselves on hints. This one lets them show what they have to begin with, and gives them a way to
    // the application: who signs in before there is a model is told how that went.
    orvui::Hint start(orv::HintCode::documentActivated, makeStartDocument(application));
    notifier->notify(start);
    QObject::connect(&idle, &QTimer::timeout, window.get(), [this] { commands->refresh(); });
    idle.start(idleInterval);
}

ViewerSession::State::~State()
{
    idle.stop();
    notifier->removeAll();
    application->detach();
    orvplatform::setExceptionHandler({});
    orvplatform::setMainWindow(nullptr);
    orvhost::setFrameRenderer(earlierRenderer);
    window->view().setDisplay(nullptr);
    window->tree().setDocument(nullptr);
}

void ViewerSession::State::makeDisplay()
{
    // A toolkit that draws off the screen has no display that the model could be drawn on.
    void* const connection = displayOfToolkit();
    if (connection != nullptr) {
        std::wstring error;
        display = SceneDisplay::create(connection, error);
        if (!display) {
            showStatus(error);
        }
    }
    earlierRenderer = orvhost::setFrameRenderer(std::make_shared<FrameRenderer>(display));
    window->view().setDisplay(display);
}

void ViewerSession::State::makeApplication()
{
    ViewerApplication::Services services;
    services.save = [this](std::wstring const& path) {
        auto const result = exportWithProgress(path);
        if (result.status != 0) {
            showStatus(result.message);
        }
        return result.status;
    };
    services.show = [this](std::wstring const& text) { showStatus(text); };
    services.notifier = notifier;
    services.status = &window->status();
    application = std::make_shared<ViewerApplication>(std::move(services));
}

void ViewerSession::State::select(std::set<int> const& nodes)
{
    std::set<int> known;
    auto const topology = orv::recordOf<orvsg::SCSceneTopo>(openDocument);
    for (int const node : nodes) {
        if (topology && topology->nodes.contains(node)) {
            known.insert(node);
        }
    }
    if (known != selectedNodes) {
        selectedNodes = std::move(known);
        raise(orv::HintCode::selectionChanged);
    }
}

void ViewerSession::State::showStatus(std::wstring const& sentence)
{
    window->status().showSentence(localizedSentence(sentence));
}

void ViewerSession::State::raise(short hintCode)
{
    orvui::Hint hint(hintCode, openDocument);
    notifier->notify(hint);
}

double ViewerSession::State::pictureAspect() const
{
    return window->view().aspect();
}

void ViewerSession::State::showDocument(std::shared_ptr<orv::Document> const& document)
{
    linkTo(application, *document);
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(document);
    renderer->settings.showAxisCross = preferences.showAxisCross;
    renderer->settings.showViewCube = preferences.showViewCube;
    setFirstView(document, pictureAspect()); // an untouched camera is what it looks for
    renderer->camera->orthographic = !preferences.startInPerspective;

    openDocument = document;
    if (display) {
        display->setDocument(document);
    }
    window->view().setCamera(renderer->camera);
    window->tree().setDocument(document);
    showFacts();
    raise(orv::HintCode::documentActivated);
    raise(orv::HintCode::documentOpened);
}

bool ViewerSession::State::openModel(std::wstring const& path)
{
    if (isOpening) {
        return false;
    }
    isOpening = true;
    auto const result = loadModel(path, *window);
    isOpening = false;
    if (!result.document) {
        showStatus(result.error);
        return false;
    }
    auto const info = orv::recordOf<orvsg::SCInfo>(result.document);
    auto const name = orv::FileUtils::getStatusFileName(info->file());
    closeModel();
    // What kept a plug-in out was said before there was a model; it is said once more where a user looks now.
    showStatus(localizedSentence(L"\"" + name + L"\" is open.") + std::exchange(pluginProblems, {}));
    window->showModel(QString::fromStdWString(name));
    showDocument(result.document);
    savePreview(); // before the list names it
    recent.add(openDocument);
    commands->refresh();
    ribbon->refresh();
    // The pane in front now belongs to another model: for it that is the same as being brought to the front.
    if (window->isSideBarShown()) {
        barrier->run([this] { sideBar->announceActiveTab(); });
    }
    return true;
}

void ViewerSession::State::closeModel()
{
    if (!openDocument) {
        return;
    }
    raise(orv::HintCode::documentClosed);
    selectedNodes.clear();
    openDocument.reset();
    movePanel->hide();
    window->view().setCamera(nullptr);
    window->tree().setDocument(nullptr);
    if (display) {
        display->setDocument(nullptr);
    }
    window->view().redrawNow();
    window->startPage().showRecent(recent);
    window->showModel({});
    showFacts();
    commands->refresh();
    ribbon->refresh();
}

bool ViewerSession::State::exportModel(std::wstring const& path)
{
    auto const result = exportWithProgress(path);
    showStatus(result.message);
    return result.status == 0;
}

ExportResult ViewerSession::State::exportWithProgress(std::wstring const& path)
{
    CWaitCursor const busy;
    window->status().showProgress(1, orvexp::exportChannel);
    auto result = exportDocument(openDocument, path, &window->status());
    window->status().showProgress(0, orvexp::exportChannel);
    return result;
}

QImage ViewerSession::State::picture(int width, int height)
{
    if (!display || !openDocument || width <= 0 || height <= 0) {
        return {};
    }
    std::vector<unsigned char> pixels(std::size_t{3} * static_cast<std::size_t>(width) *
                                      static_cast<std::size_t>(height));
    if (!display->drawFrame(static_cast<unsigned>(width), static_cast<unsigned>(height), false, pixels.data())) {
        return {};
    }
    return QImage(pixels.data(), width, height, 3 * width, QImage::Format_RGB888).copy();
}

void ViewerSession::State::savePreview()
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(openDocument);
    auto const settings = std::exchange(renderer->settings, {false, false, false});
    auto const camera = *renderer->camera;
    fitWhole(openDocument, *renderer->camera, 1.0); // the view is wider than the picture
    recent.savePreview(openDocument, picture(previewSide, previewSide));
    *renderer->camera = camera;
    renderer->settings = settings;
}

bool ViewerSession::State::savePicture(std::wstring const& path, int width, int height)
{
    auto const image = picture(width, height);
    if (image.isNull()) {
        showStatus(openDocument ? L"The picture can't be drawn: there is no display with OpenGL."
                                : L"There is nothing to draw. Open a model first.");
        return false;
    }
    auto const name = orv::FileUtils::getStatusFileName(path.c_str());
    bool const isSaved = image.save(QString::fromStdWString(path));
    showStatus(isSaved
                   ? L"\"" + name + L"\" was saved."
                   : L"\"" + name + L"\" can't be written. Check the folder and that the name ends in .png or .jpg.");
    return isSaved;
}

bool ViewerSession::State::runCommand(unsigned int id)
{
    bool const isDone =
        commands->action(id) != nullptr ? commands->run(id) : plugins->isEnabled(id) && plugins->run(id);
    commands->refresh();
    ribbon->refresh();
    return isDone;
}

ViewerSession::ViewerSession(orvhost::Settings settings) : state(std::make_unique<State>(std::move(settings))) {}
ViewerSession::~ViewerSession()
{
    state->closeModel();
}

bool ViewerSession::openModel(std::wstring const& path)
{
    return state->openModel(path);
}
void ViewerSession::closeModel()
{
    state->closeModel();
}
bool ViewerSession::exportModel(std::wstring const& path)
{
    return state->exportModel(path);
}
bool ViewerSession::savePicture(std::wstring const& path, int width, int height)
{
    return state->savePicture(path, width, height);
}
std::shared_ptr<orv::IDocument> ViewerSession::document() const
{
    return state->openDocument;
}
MainWindow& ViewerSession::window()
{
    return *state->window;
}
CommandContext& ViewerSession::context()
{
    return *state;
}
CommandTable& ViewerSession::commands()
{
    return *state->commands;
}
PluginHost& ViewerSession::plugins()
{
    return *state->plugins;
}
SideBar& ViewerSession::sideBar()
{
    return *state->sideBar;
}
CMFCRibbonBar& ViewerSession::ribbonBar()
{
    return state->ribbon->ribbonBar();
}
std::shared_ptr<orv::IApplication> ViewerSession::application()
{
    return state->application;
}
std::wstring ViewerSession::statusText() const
{
    return state->window->status().sentence();
}
bool ViewerSession::canDraw() const
{
    return state->display != nullptr;
}
bool ViewerSession::runCommand(unsigned int id)
{
    return state->runCommand(id);
}

} // namespace orvviewer
