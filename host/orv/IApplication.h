#pragma once

#include "host/orv/IStatusManager.h"
#include "host/orv/IViewNotifier.h"

#include <functional>
#include <memory>

namespace orv
{

class IApplication;

/// Told of the outcome of a save: the status (0 for success), the path, and the application that saved.
using SaveCompletion = std::function<void(int const* status, wchar_t const* path, IApplication* application)>;

/// The main window's services.
class IApplication
{
public:
    virtual ~IApplication() = default;

    /// Writes the open document to the path, in the format of its extension, and calls `completed` with the outcome.
    virtual void saveFile(wchar_t const* path, SaveCompletion completed) = 0;
    /// Shows a text to the user in the status line; `kind` is always 0.
    virtual void showStatus(wchar_t const* text, int kind) = 0;
    virtual std::shared_ptr<IViewNotifier> getViewNotifier() = 0; ///< may be empty
    virtual IStatusManager* getStatusManager() = 0; ///< owned by the application; never null in a running viewer
};

} // namespace orv
