#include "viewer/app/ViewerApplication.h"

#include <utility>

namespace orvviewer
{

namespace
{

constexpr int notSaved = 1;

class SilentStatus final : public orv::IStatusManager
{
public:
    void setProgress(int const&, int) override {}
    void showProgress(int, int) override {}
};
SilentStatus silentStatus;

} // namespace

ViewerApplication::ViewerApplication(Services initial) : services(std::move(initial)) {}

void ViewerApplication::detach()
{
    services = {};
}

void ViewerApplication::saveFile(wchar_t const* path, orv::SaveCompletion completed)
{
    std::wstring const file = path == nullptr ? L"" : path;
    int const status = services.save && !file.empty() ? services.save(file) : notSaved;
    if (completed) {
        completed(&status, file.c_str(), this);
    }
}

void ViewerApplication::showStatus(wchar_t const* text, int)
{
    if (services.show) {
        services.show(text == nullptr ? L"" : text);
    }
}

std::shared_ptr<orv::IViewNotifier> ViewerApplication::getViewNotifier()
{
    return services.notifier;
}

orv::IStatusManager* ViewerApplication::getStatusManager()
{
    return services.status != nullptr ? services.status : &silentStatus;
}

} // namespace orvviewer
