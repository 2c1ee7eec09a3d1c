#pragma once

#include "host/orv/IApplication.h"

#include <functional>
#include <memory>

namespace orvviewer
{

/// The services of the main window as plug-ins see them. Plug-ins may keep it longer than the window lives: after
/// detach every operation does nothing.
class ViewerApplication final : public orv::IApplication
{
public:
    struct Services {
        std::function<int(std::wstring const& path)> save; ///< returns a status, 0 for success
        std::function<void(std::wstring const& text)> show;
        std::shared_ptr<orv::IViewNotifier> notifier;
        orv::IStatusManager* status = nullptr;
    };

    explicit ViewerApplication(Services services);
    void detach();

    void saveFile(wchar_t const* path, orv::SaveCompletion completed) override;
    void showStatus(wchar_t const* text, int kind) override;
    std::shared_ptr<orv::IViewNotifier> getViewNotifier() override;
    orv::IStatusManager* getStatusManager() override;

private:
    Services services;
};

} // namespace orvviewer
