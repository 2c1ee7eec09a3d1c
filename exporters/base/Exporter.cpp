#include "exporters/base/Exporter.h"

#include "host/orv/FilePath.h"
#include "host/orv/IDocument.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/runtime/Files.h"

#include <algorithm>
#include <cwctype>
#include <utility>

namespace orvexport
{

Exporter::Exporter(wchar_t const* exporterName, wchar_t const* identityText, std::vector<std::wstring> fileExtensions)
    : name(exporterName), ownId(identityText), extensions(std::move(fileExtensions))
{
}

bool Exporter::takes(wchar_t const* path)
{
    std::wstring extension = orv::FilePath(path).getExt();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    return std::any_of(extensions.begin(), extensions.end(),
                       [&](std::wstring const& known) { return extension == L'.' + known; });
}

orvexp::Status Exporter::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                              std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    try {
        Progress progress(status);
        auto const topology = orv::recordOf<orvsg::SCSceneTopo>(document);
        if (!topology || topology->nodes.size() == 0 || !orv::recordOf<orvsg::SCSceneRes>(document)) {
            return orvexp::Status::nothingToWrite;
        }
        if (path == nullptr || *path == L'\0') {
            return orvexp::Status::cannotWrite;
        }
        auto const target = orvhost::nativePath(path);
        OutputFile file(target);
        write({document, preferences.get(), target, file, progress});
        file.putInPlace();
        progress.set(1);
        return orvexp::Status::ok;
    } catch (NothingToWrite const&) {
        return orvexp::Status::nothingToWrite;
    } catch (...) {
        // The libraries below throw what they like, not only standard exceptions. The file is gone by now.
        return orvexp::Status::cannotWrite;
    }
}

} // namespace orvexport
