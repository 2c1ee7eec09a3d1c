#include "exporters/prcdelaywriter/PrcDelayWriter.h"

#include "exporters/base/Exporter.h"
#include "exporters/base/Units.h"
#include "exporters/prc/PrcWriter.h"
#include "exporters/prcdelaywriter/SceneBuilder.h"
#include "host/runtime/Files.h"

namespace prcdelay
{

orvexp::Status PrcDelayWriter::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                                    std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    // Running out of memory must not end the viewer: nothing has been written by then, or it has been removed again.
    try {
        orvexport::Progress progress(status);
        auto const scene = buildScene(document, orvexport::millimetresPerUnit(preferences.get()));
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
        return prc::writeFile(*scene, orvhost::nativePath(path), options).reason;
    } catch (...) {
        return orvexport::statusOfException();
    }
}

} // namespace prcdelay
