#include "exporters/base/Exporter.h"

#include "host/orv/IDocument.h"
#include "host/orvsg/SCSceneRes.h"
#include "host/orvsg/SCSceneTopo.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <new>
#include <utility>

namespace orvexport
{

Exporter::Exporter(wchar_t const* exporterName, wchar_t const* identityText, std::vector<std::wstring> fileExtensions)
    : name(exporterName), ownId(identityText), extensions(std::move(fileExtensions))
{
}

bool Exporter::takes(wchar_t const* path)
{
    auto const extension = orvhost::extensionOf(path == nullptr ? L"" : path);
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

orvexp::Status Exporter::save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                              std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status)
{
    beside.clear();
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
        try {
            OutputFile file(target);
            std::vector<std::unique_ptr<OutputFile>> companions;
            write({document, preferences.get(), target, orvhost::extensionOf(path), file, companions, progress});
            std::vector<OutputFile*> files;
            for (auto const& companion : companions) {
                files.push_back(companion.get());
            }
            files.push_back(&file); // last: whoever opens it finds what it names
            OutputFile::putInPlace(files);
        } catch (OutputError const& error) {
            if (!error.file().empty() && error.file() != target) {
                beside = orvtext::fromUtf8(error.file().string());
            }
            throw;
        }
        progress.set(1);
        return orvexp::Status::ok;
    } catch (...) {
        return statusOfException(); // the file is gone by now
    }
}

orvexp::Status statusOfException() noexcept
{
    try {
        throw;
    } catch (NothingToWrite const&) {
        return orvexp::Status::nothingToWrite;
    } catch (OutputError const& error) {
        return error.status();
    } catch (std::bad_alloc const&) {
        return orvexp::Status::noMemory;
    } catch (std::length_error const&) {
        return orvexp::Status::modelTooLarge;
    } catch (...) {
        // The libraries below throw what they like, not only standard exceptions.
        return orvexp::Status::cannotWrite;
    }
}

} // namespace orvexport
