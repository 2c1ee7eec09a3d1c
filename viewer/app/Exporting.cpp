#include "viewer/app/Exporting.h"

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/FileUtils.h"
#include "host/orv/IPlugin.h"
#include "host/orvexp/DelayExportHelper.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvexp/ExportManager.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace orvviewer
{

namespace
{

constexpr wchar_t const* deferredExtension = L"prc";
/// What the exporters of the installation may write, in the order in which it is offered.
constexpr std::array<wchar_t const*, 8> usualExtensions{L"orvanta", L"pdf", L"stl", L"obj",
                                                        L"3ds",     L"dae", L"csv", L"bompdf"};

std::shared_ptr<orvexp::ExportManager> loadExporters()
{
    auto manager = std::make_shared<orvexp::ExportManager>(nullptr);
    std::vector<std::filesystem::path> libraries;
    std::error_code failure;
    auto const folder = orv::IPlugin::getPluginPath(nullptr, orv::IPlugin::exporterPlugin);
    for (auto const& entry : std::filesystem::directory_iterator(orvhost::nativePath(folder), failure)) {
        if (entry.path().extension() == ".so") {
            libraries.push_back(entry.path());
        }
    }
    std::sort(libraries.begin(), libraries.end());
    for (auto const& library : libraries) {
        auto const entry = std::make_shared<orv::DLLFuncPtrHelper<orv::IPlugin>>(
            orvtext::fromUtf8(library.string()).c_str(), "createPlugin", "destroyPlugin");
        if (entry->isValid()) {
            manager->push_back(std::make_shared<orvexp::ExportHelper>(entry));
        }
    }
    return manager;
}

std::shared_ptr<orvexp::IDelayExporter> loadDeferred(std::wstring& error)
{
    auto const path = orv::FileUtils::join(orv::IPlugin::getDelayPluginPath(nullptr), L"prcdelaywriter.dll");
    auto const entry =
        std::make_shared<orv::DLLFuncPtrHelper<orvexp::IDelayExporter>>(path.c_str(), "create", "destroy");
    error = entry->errorText();
    return entry->isValid() ? std::make_shared<orvexp::DelayExportHelper>(entry) : nullptr;
}

/// What the outcome tells the user, of a file by that name; a whole sentence.
std::wstring sentenceFor(orvexp::Status status, std::wstring const& name)
{
    using orvexp::Status;
    switch (status) {
    case Status::ok:
        return L"\"" + name + L"\" was saved.";
    case Status::noLibrary:
        return L"\"" + name + L"\" can't be saved: its exporter isn't installed. Choose another format.";
    case Status::nothingToWrite:
        return L"There is nothing to save in this format. Open a model with parts first.";
    case Status::isFolder:
        return L"\"" + name + L"\" can't be written: it is a folder. Choose a name for the file.";
    case Status::noFolder:
        return L"\"" + name + L"\" can't be written: its folder doesn't exist. Choose another folder.";
    case Status::isProtected:
        return L"\"" + name + L"\" can't be written: it is protected against writing. Choose another name.";
    case Status::folderProtected:
        return L"\"" + name + L"\" can't be written: you may not write to its folder. Choose another folder.";
    case Status::readOnlyDisk:
        return L"\"" + name + L"\" can't be written: its disk is read-only. Choose another disk.";
    case Status::diskFull:
        return L"\"" + name + L"\" can't be written: the disk is full. Make room, or choose another disk.";
    case Status::overQuota:
        return L"\"" + name + L"\" can't be written: your quota is used up. Make room, or choose another disk.";
    case Status::fileTooLarge:
        return L"\"" + name + L"\" can't be written: its disk takes no file of this size. Choose another disk.";
    case Status::nameTooLong:
        return L"\"" + name + L"\" can't be written: its name is too long. Choose a shorter name.";
    case Status::pathTooLong:
        return L"\"" + name +
               L"\" can't be written: the path of its folder is too long. Choose a folder with a shorter path.";
    case Status::noMemory:
        return L"\"" + name + L"\" can't be written: the memory is full. Close other programs and try again.";
    case Status::modelTooLarge:
        return L"\"" + name + L"\" can't be saved: the model is too large for this format. Choose another format.";
    case Status::cannotWrite:
        break;
    }
    return L"\"" + name + L"\" can't be written. Check the folder and the free space, or choose another place.";
}

ExportResult outcome(orvexp::Status status, std::wstring const& path)
{
    return {static_cast<int>(status), sentenceFor(status, orv::FileUtils::getStatusFileName(path.c_str()))};
}

} // namespace

ExportResult exportDocument(std::shared_ptr<orv::IDocument> const& document, std::wstring const& path,
                            orv::IStatusManager* status)
{
    if (!document) {
        return outcome(orvexp::Status::nothingToWrite, path);
    }
    try {
        if (orvhost::extensionOf(path) == deferredExtension) {
            std::wstring error;
            if (auto const writer = loadDeferred(error)) {
                return outcome(writer->save(path.c_str(), document, nullptr, status), path);
            }
            return {static_cast<int>(orvexp::Status::noLibrary), error};
        }
        auto const exporters = loadExporters();
        if (auto const exporter = exporters->getPlugin(path.c_str())) {
            auto const reason = exporter->save(path.c_str(), document, nullptr, status);
            std::wstring const beside = exporter->unwrittenBeside();
            return outcome(reason, beside.empty() ? path : beside);
        }
        return outcome(orvexp::Status::noLibrary, path);
    } catch (...) {
        // An exporter may throw what is no standard exception; whatever it is, nothing was written.
        return outcome(orvexp::Status::cannotWrite, path);
    }
}

std::vector<std::wstring> writableExtensions()
{
    std::vector<std::wstring> result;
    std::wstring error;
    if (loadDeferred(error)) {
        result.emplace_back(deferredExtension);
    }
    auto const exporters = loadExporters();
    for (auto const* extension : usualExtensions) {
        if (exporters->getPlugin((std::wstring(L"model.") + extension).c_str())) {
            result.emplace_back(extension);
        }
    }
    return result;
}

} // namespace orvviewer
