#include "exporters/prcdelaywriter/PrcDelayWriter.h"

#include "exporters/prc/PrcWriter.h"
#include "exporters/prcdelaywriter/SceneBuilder.h"
#include "host/orv/IStatusManager.h"
#include "host/orv/Preferences.h"
#include "host/orvsg/Value.h"
#include "host/runtime/Files.h"

#include <array>
#include <exception>

namespace prcdelay
{

namespace
{

constexpr int channel = 1;

double millimetresPerUnit(orv::Preferences const* preferences)
{
    constexpr std::array<double, 5> units{1000, 1, 10, 25.4, 304.8};
    constexpr double fallback = 1;
    if (preferences == nullptr)
        return fallback;
    auto const choice = std::dynamic_pointer_cast<orvsg::Value<int, 3>>(preferences->find(L"EXPORT_UNIT"));
    if (!choice || choice->get() < 0 || static_cast<std::size_t>(choice->get()) >= units.size())
        return fallback;
    return units[static_cast<std::size_t>(choice->get())];
}

// The progress bar, shown while this lives.
class Progress
{
public:
    explicit Progress(orv::IStatusManager* manager) : status(manager)
    {
        if (status == nullptr)
            return;
        status->showProgress(1, channel);
        status->setProgress(shown, channel);
    }
    ~Progress()
    {
        if (status != nullptr)
            status->showProgress(0, channel);
    }
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    void set(double done)
    {
        int const percent = static_cast<int>(done * 100);
        if (status == nullptr || percent <= shown)
            return;
        shown = percent;
        status->setProgress(shown, channel);
    }

private:
    orv::IStatusManager* status;
    int shown = 0;
};

} // namespace

orvexp::Status PrcDelayWriter::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                                    std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    // Running out of memory must not end the viewer: nothing has been written by then, or it has been removed again.
    try {
        Progress progress(status);
        auto const scene = buildScene(document, millimetresPerUnit(preferences.get()));
        if (!scene)
            return orvexp::Status::nothingToWrite;
        if (path == nullptr || *path == L'\0')
            return orvexp::Status::cannotWrite;
        prc::WriteOptions options;
        constexpr double builtPart = 0.2;
        options.progress = [&](double done) {
            progress.set(builtPart + (1 - builtPart) * done);
            return true;
        };
        return prc::writeFile(*scene, orvhost::nativePath(path), options) ? orvexp::Status::ok
                                                                          : orvexp::Status::cannotWrite;
    } catch (std::exception const&) {
        return orvexp::Status::cannotWrite;
    }
}

} // namespace prcdelay
