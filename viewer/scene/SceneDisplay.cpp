#include "viewer/scene/SceneDisplay.h"

#include "host/orvgl/SCRenderer.h"
#include "viewer/scene/DisplayLook.h"
#include "viewer/scene/PartPresentation.h"
#include "viewer/scene/ScenePresentations.h"
#include "viewer/scene/ViewCamera.h"
#include "viewer/scene/ViewFurniture.h"

#include <AIS_InteractiveContext.hxx>
#include <AIS_ViewCube.hxx>
#include <Aspect_DisplayConnection.hxx>
#include <Graphic3d_RenderingParams.hxx>
#include <Image_PixMap.hxx>
#include <OpenGl_GraphicDriver.hxx>
#include <Standard_Failure.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <V3d.hxx>
#include <V3d_View.hxx>
#include <V3d_Viewer.hxx>
#include <Xw_Window.hxx>

#include <algorithm>
#include <chrono>
#include <cstring>

namespace orvviewer
{

namespace
{

constexpr int multisampling = 4;
constexpr float coarseScale = 0.6F; ///< of the resolution, where coarse frames are slow
constexpr std::chrono::milliseconds smoothFrame{60};

bool drawsInSoftware(Handle(V3d_View) const& view)
{
    TColStd_IndexedDataMapOfStringString facts;
    view->DiagnosticInformation(facts, Graphic3d_DiagnosticInfo_Device);
    TCollection_AsciiString renderer;
    facts.FindFromKey("GLdevice", renderer);
    return renderer.Search("llvmpipe") > 0 || renderer.Search("softpipe") > 0;
}

} // namespace

struct SceneDisplay::State {
    Handle(Aspect_DisplayConnection) connection;
    Handle(V3d_Viewer) viewer;
    Handle(AIS_InteractiveContext) context;
    Handle(V3d_View) screenView; ///< null while no window is attached
    Handle(AIS_ViewCube) screenCube;
    Handle(V3d_View) frameView; ///< made with the first frame
    Handle(AIS_ViewCube) frameCube;
    std::unique_ptr<ScenePresentations> presentations;
    std::shared_ptr<orv::IDocument> document;
    std::set<int> selection;
    int screenWidth = 0; ///< of the window when it was last looked at, pixels
    int screenHeight = 0;
    int screenFrames = 0;
    bool isDark = false;
    bool isCoarse = false;
    bool isSoftware = false;
    bool isSlow = false; ///< the last coarse frame took too long

    Handle(V3d_View) makeView(int width, int height, Handle(Xw_Window) window);
    Handle(AIS_ViewCube) makeCube(Handle(V3d_View) const& view);
    void makeFrameView();
    void keepCubesApart();
    void followWindow();
    void drawScreen();
};

Handle(V3d_View) SceneDisplay::State::makeView(int width, int height, Handle(Xw_Window) window)
{
    if (window.IsNull()) {
        window = new Xw_Window(connection, "", 0, 0, width, height);
        window->SetVirtual(Standard_True);
    }
    Handle(V3d_View) const view = viewer->CreateView();
    view->SetWindow(window);
    view->ChangeRenderingParams().NbMsaaSamples = multisampling;
    view->ChangeRenderingParams().IsAntialiasingEnabled = Standard_False;
    view->SetImmediateUpdate(Standard_False);
    return view;
}

Handle(AIS_ViewCube) SceneDisplay::State::makeCube(Handle(V3d_View) const& view)
{
    Handle(AIS_ViewCube) const cube = makeViewCube();
    context->Display(cube, 0, 0, Standard_False);
    context->SetViewAffinity(cube, view, Standard_True);
    return cube;
}

void SceneDisplay::State::keepCubesApart()
{
    if (!screenView.IsNull() && !frameView.IsNull()) {
        context->SetViewAffinity(screenCube, frameView, Standard_False);
        context->SetViewAffinity(frameCube, screenView, Standard_False);
    }
}

void SceneDisplay::State::makeFrameView()
{
    frameView = makeView(256, 256, {});
    frameCube = makeCube(frameView);
    context->Deactivate(frameCube);
    keepCubesApart();
    presentations->putInOrder();
}

void SceneDisplay::State::followWindow()
{
    int width = 0;
    int height = 0;
    screenView->Window()->Size(width, height);
    if (width != screenWidth || height != screenHeight) {
        screenWidth = width;
        screenHeight = height;
        screenView->Window()->DoResize();
        screenView->MustBeResized();
        if (auto const renderer = orv::recordOf<orvgl::SCRenderer>(document)) {
            applyToCamera(*renderer->camera, static_cast<double>(std::max(width, 1)) / std::max(height, 1),
                          screenView->Camera());
        }
    }
}

void SceneDisplay::State::drawScreen()
{
    // The display may give the window its size later than the toolkit says.
    followWindow();
    auto& parameters = screenView->ChangeRenderingParams();
    parameters.NbMsaaSamples = isCoarse ? 0 : multisampling;
    parameters.RenderResolutionScale = isCoarse && isSlow ? coarseScale : 1.0F;
    screenView->InvalidateImmediate();
    auto const start = std::chrono::steady_clock::now();
    screenView->Redraw();
    ++screenFrames;
    if (isCoarse) {
        isSlow = isSlow || std::chrono::steady_clock::now() - start > smoothFrame;
    }
}

SceneDisplay::SceneDisplay(std::unique_ptr<State> initial) : state(std::move(initial)) {}

SceneDisplay::~SceneDisplay()
{
    state->presentations.reset();
    state->context->RemoveAll(Standard_False);
    detachWindow();
    if (!state->frameView.IsNull()) {
        state->frameView->Remove();
    }
}

std::unique_ptr<SceneDisplay> SceneDisplay::create(void* xDisplay, std::wstring& error)
{
    try {
        auto state = std::make_unique<State>();
        state->connection = xDisplay != nullptr ? new Aspect_DisplayConnection(static_cast<Aspect_XDisplay*>(xDisplay))
                                                : new Aspect_DisplayConnection();
        Handle(OpenGl_GraphicDriver) const driver = new OpenGl_GraphicDriver(state->connection, Standard_False);
        driver->ChangeOptions().swapInterval = 0;
        if (!driver->InitContext()) {
            error = L"The display offers no OpenGL. Install a graphics driver, or Mesa's software one.";
            return nullptr;
        }
        state->viewer = new V3d_Viewer(driver);
        setUpLights(state->viewer);
        state->context = new AIS_InteractiveContext(state->viewer);
        setUpHighlighting(state->context);
        state->presentations = std::make_unique<ScenePresentations>(state->context);
        return std::unique_ptr<SceneDisplay>(new SceneDisplay(std::move(state)));
    } catch (Standard_Failure const&) {
        error = L"There is no display to draw on. Start the viewer from a desktop session.";
        return nullptr;
    }
}

void SceneDisplay::attachWindow(unsigned long window)
{
    detachWindow();
    Handle(Xw_Window) const native = new Xw_Window(state->connection, window);
    state->screenView = state->makeView(0, 0, native);
    state->screenCube = state->makeCube(state->screenView);
    state->screenWidth = state->screenHeight = 0;
    state->keepCubesApart();
    state->presentations->putInOrder();
    setBackground(state->screenView, state->isDark);
    state->isSoftware = drawsInSoftware(state->screenView);
    if (state->isSoftware) {
        // Light computed at the vertices takes half the time; the triangles are fine enough for it.
        state->screenView->SetShadingModel(Graphic3d_TOSM_VERTEX);
    }
    applyCamera();
}

void SceneDisplay::detachWindow()
{
    if (!state->screenView.IsNull()) {
        state->context->Remove(state->screenCube, Standard_False);
        state->screenView->Remove();
        state->screenView.Nullify();
        state->screenCube.Nullify();
    }
}

void SceneDisplay::setMoving(bool moving)
{
    state->isCoarse = moving && state->isSoftware;
    state->isSlow = state->isSlow && moving;
}

void SceneDisplay::redraw()
{
    if (!state->screenView.IsNull()) {
        state->drawScreen();
    }
}

double SceneDisplay::aspect() const
{
    if (state->screenView.IsNull()) {
        return 1.0;
    }
    int width = 1;
    int height = 1;
    state->screenView->Window()->Size(width, height);
    return static_cast<double>(std::max(width, 1)) / std::max(height, 1);
}

void SceneDisplay::setDocument(std::shared_ptr<orv::IDocument> document)
{
    state->selection.clear();
    state->document = document;
    state->presentations->setDocument(std::move(document));
    applyCamera();
}

std::shared_ptr<orv::IDocument> const& SceneDisplay::document() const
{
    return state->document;
}

void SceneDisplay::sync()
{
    state->presentations->sync();
}

void SceneDisplay::applyCamera()
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(state->document);
    if (state->screenView.IsNull()) {
        return;
    }
    auto const settings = renderer ? renderer->settings : orvgl::RendererSettings();
    showAxisCross(state->screenView, settings.showAxisCross && renderer, state->isDark);
    bool const showCube = settings.showViewCube && renderer;
    if (showCube != static_cast<bool>(state->context->IsDisplayed(state->screenCube))) {
        if (showCube) {
            state->context->Display(state->screenCube, 0, 0, Standard_False);
        } else {
            state->context->Erase(state->screenCube, Standard_False);
        }
    }
    if (renderer) {
        applyToCamera(*renderer->camera, aspect(), state->screenView->Camera());
        state->screenView->Invalidate();
    }
}

void SceneDisplay::setDark(bool dark)
{
    state->isDark = dark;
    if (!state->screenView.IsNull()) {
        setBackground(state->screenView, dark);
        applyCamera();
    }
}

PickResult SceneDisplay::hover(int x, int y)
{
    PickResult result;
    if (state->screenView.IsNull()) {
        return result;
    }
    state->context->MoveTo(x, y, state->screenView, Standard_True);
    if (!state->context->HasDetected()) {
        return result;
    }
    Handle(SelectMgr_EntityOwner) const owner = state->context->DetectedOwner();
    if (auto const cubeOwner = Handle(AIS_ViewCubeOwner)::DownCast(owner); !cubeOwner.IsNull()) {
        gp_Dir const side = V3d::GetProjAxis(cubeOwner->MainOrientation());
        result.viewFrom = {side.X(), side.Y(), side.Z()};
    } else if (auto const part = Handle(PartInstance)::DownCast(state->context->DetectedInteractive());
               !part.IsNull()) {
        result.node = part->node();
    }
    return result;
}

void SceneDisplay::leave()
{
    state->context->ClearDetected(Standard_False);
    redraw();
}

void SceneDisplay::setSelection(std::set<int> const& nodes)
{
    state->selection = nodes;
    state->presentations->setSelection(nodes);
}

bool SceneDisplay::drawFrame(unsigned int width, unsigned int height, bool whiteBackground, unsigned char* pixels)
{
    auto const renderer = orv::recordOf<orvgl::SCRenderer>(state->document);
    if (!renderer || width == 0 || height == 0) {
        return false;
    }
    try {
        if (state->frameView.IsNull()) {
            state->makeFrameView();
        }
        auto const& settings = renderer->settings;
        auto& context = state->context;
        if (whiteBackground) {
            setWhiteBackground(state->frameView);
        } else {
            setBackground(state->frameView, state->isDark);
        }
        showAxisCross(state->frameView, settings.showAxisCross, state->isDark && !whiteBackground);
        context->SetViewAffinity(state->frameCube, state->frameView, settings.showViewCube);
        context->ClearDetected(Standard_False);
        if (!settings.showSelection) {
            state->presentations->setSelection({});
        }
        applyToCamera(*renderer->camera, static_cast<double>(width) / height, state->frameView->Camera());
        state->frameView->Invalidate();
        Image_PixMap picture;
        V3d_ImageDumpOptions options;
        options.Width = static_cast<int>(width);
        options.Height = static_cast<int>(height);
        bool const isDrawn = state->frameView->ToPixMap(picture, options);
        if (!settings.showSelection) {
            state->presentations->setSelection(state->selection);
        }
        if (!isDrawn || picture.Format() != Image_Format_RGB) {
            return false;
        }
        for (unsigned int row = 0; row < height; ++row) {
            std::memcpy(pixels + std::size_t{3} * width * row, picture.Row(row), std::size_t{3} * width);
        }
        return true;
    } catch (Standard_Failure const&) {
        return false;
    }
}

int SceneDisplay::displayedCount() const
{
    return state->presentations->displayedCount();
}

int SceneDisplay::screenFrames() const
{
    return state->screenFrames;
}

} // namespace orvviewer
