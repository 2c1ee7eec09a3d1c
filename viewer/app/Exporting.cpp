#include "viewer/app/Exporting.h"

#include "host/orv/DLLFuncPtrHelper.h"
#include "host/orv/FilePath.h"
#include "host/orv/FileUtils.h"
#include "host/orv/IPlugin.h"
#include "host/orvexp/DelayExportHelper.h"
#include "host/orvexp/ExportHelper.h"
#include "host/orvexp/ExportManager.h"
#include "host/runtime/Files.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <exception>
#include <filesystem>
#include <unistd.h>

namespace orvviewer
{

namespace
{

constexpr wchar_t const* deferredExtension = L"prc";
/// What the exporters of the installation may write, in the order in which it is offered.
constexpr std::array<wchar_t const*, 8> usualExtensions{L"orvanta", L"pdf", L"stl", L"obj",
                                                        L"3ds",     L"dae", L"csv", L"bompdf"};

std::wstring extensionOf(std::wstring const& path)
{
    auto text = orvtext::fromUtf8(orvhost::nativePath(path).extension().string());
    text.erase(0, 1);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))); });
    return text;
}

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

/// Why a file of that path can't be written, as far as the file system tells; a whole sentence.
std::wstring reasonAgainst(std::wstring const& path, std::wstring const& name)
{
    namespace fs = std::filesystem;
    auto const file = orvhost::nativePath(path);
    std::error_code failure;
    if (fs::is_directory(file, failure)) {
        return L"\"" + name + L"\" can't be written: it is a folder. Choose a name for the file.";
    }
    auto const folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    if (!fs::is_directory(folder, failure)) {
        return L"\"" + name + L"\" can't be written: its folder doesn't exist. Choose another folder.";
    }
    auto const rights = fs::status(file, failure).permissions();
    auto const anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (fs::exists(file, failure) && (rights & anyWrite) == fs::perms::none) {
        return L"\"" + name + L"\" can't be written: it is protected against writing. Choose another name.";
    }
    if (access(folder.c_str(), W_OK) != 0) {
        return L"\"" + name + L"\" can't be written: you may not write to its folder. Choose another folder.";
    }
    constexpr std::uintmax_t hardlyAny = std::uintmax_t{1} << 20;
    auto const space = fs::space(folder, failure);
    if (!failure && space.available < hardlyAny) {
        return L"\"" + name + L"\" can't be written: the disk is full. Make room, or choose another disk.";
    }
    return L"\"" + name + L"\" can't be written. Check the folder and the free space, or choose another place.";
}

ExportResult outcome(orvexp::Status status, std::wstring const& path)
{
    auto const name = orv::FileUtils::getStatusFileName(path.c_str());
    switch (status) {
    case orvexp::Status::ok:
        return {0, L"\"" + name + L"\" was saved."};
    case orvexp::Status::noLibrary:
        return {static_cast<int>(status),
                L"\"" + name + L"\" can't be saved: its exporter isn't installed. Choose another format."};
    case orvexp::Status::nothingToWrite:
        return {static_cast<int>(status), L"There is nothing to save in this format. Open a model with parts first."};
    case orvexp::Status::cannotWrite:
        break;
    }
    return {static_cast<int>(orvexp::Status::cannotWrite), reasonAgainst(path, name)};
}

} // namespace

ExportResult exportDocument(std::shared_ptr<orv::IDocument> const& document, std::wstring const& path,
                            orv::IStatusManager* status)
{
    if (!document) {
        return outcome(orvexp::Status::nothingToWrite, path);
    }
    try {
        if (extensionOf(path) == deferredExtension) {
            std::wstring error;
            if (auto const writer = loadDeferred(error)) {
                return outcome(writer->save(path.c_str(), document, nullptr, status), path);
            }
            return {static_cast<int>(orvexp::Status::noLibrary), error};
        }
        auto const exporters = loadExporters();
        if (auto const exporter = exporters->getPlugin(path.c_str())) {
            return outcome(exporter->save(path.c_str(), document, nullptr, status), path);
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
