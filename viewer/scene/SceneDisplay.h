#pragma once

#include "host/orv/IDocument.h"

#include <array>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace orvviewer
{

/// What is under the pointer.
struct PickResult {
    int node = -1;                                 ///< -1 for none
    std::optional<std::array<double, 3>> viewFrom; ///< a side, edge or corner of the view cube: where to look from
};

/// Draws a document. The scene records are the truth and the drawing follows them when it is told to: sync() for
/// visibility, looks and placements, applyCamera() for the view. Needs an X display with OpenGL; one thread.
class SceneDisplay
{
public:
    /// `xDisplay` is the toolkit's connection; null opens one of its own to $DISPLAY. Empty with a sentence in `error`
    /// where nothing can be drawn.
    static std::unique_ptr<SceneDisplay> create(void* xDisplay, std::wstring& error);
    ~SceneDisplay();
    SceneDisplay(SceneDisplay const&) = delete;
    SceneDisplay& operator=(SceneDisplay const&) = delete;

    /// Shows the scene in a window of the display, by its number. Detach before the window goes.
    void attachWindow(unsigned long window);
    void detachWindow();
    void redraw(); ///< at the window's size of now
    /// While the view is in motion and drawn without a graphics card it is drawn coarsely, for speed.
    void setMoving(bool moving);
    double aspect() const; ///< width to height of the window; 1 without one

    /// Null shows nothing. The document's records must be complete.
    void setDocument(std::shared_ptr<orv::IDocument> document);
    std::shared_ptr<orv::IDocument> const& document() const;
    /// Brings presentations in line with the records; costs little where little has changed.
    void sync();
    /// Takes the document's camera and renderer settings over.
    void applyCamera();
    void setDark(bool dark);

    /// Lights up what is under the pointer (window pixels) and says what it is.
    PickResult hover(int x, int y);
    void leave(); ///< the pointer has left the window
    void setSelection(std::set<int> const& nodes);

    /// One frame of any size (pixels) of the shown document, off the screen: red, green, blue, from the top row.
    bool drawFrame(unsigned int width, unsigned int height, bool whiteBackground, unsigned char* pixels);

    /// Number of objects on display, for tests.
    int displayedCount() const;
    /// Number of frames drawn in windows so far, for tests and measurements.
    int screenFrames() const;

private:
    struct State;
    explicit SceneDisplay(std::unique_ptr<State> state);
    std::unique_ptr<State> state;
};

} // namespace orvviewer
