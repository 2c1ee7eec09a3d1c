#pragma once

#include "exporters/base/Progress.h"
#include "exporters/output/OutputFile.h"
#include "host/orvexp/IExporter.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace orvexport
{

/// What an exporter is asked to write. The document has a tree with at least one node.
struct Job {
    std::shared_ptr<orv::IDocument> const& document;
    orv::Preferences const* preferences; ///< may be null
    std::filesystem::path path;          ///< of the wanted file; what is written goes through `file`
    std::wstring extension;              ///< of that path: one of the exporter's own, or another that it was given
    OutputFile& file;
    /// What the format writes beside the wanted file; put in place with it, all or none.
    std::vector<std::unique_ptr<OutputFile>>& companions;
    Progress& progress;
};

/// Thrown by an exporter that finds nothing of what its format holds, such as a model without triangles.
class NothingToWrite : public std::runtime_error
{
public:
    NothingToWrite() : std::runtime_error("the model holds nothing that the format can keep") {}
};

/// The outcome of a save that the exception being handled stands for.
orvexp::Status statusOfException() noexcept;

/// What all exporter plug-ins do alike: they take files by their extension, show progress, write beside the wanted file
/// and put it in place at the end. Whatever goes wrong, save throws nothing and leaves an earlier file as it was.
class Exporter : public orvexp::IExporter
{
public:
    wchar_t const* getName() override { return name; }
    PluginType getType() override { return exporterPlugin; }
    orv::GUID const& id() override { return ownId; }
    /// Exporters keep no settings with the viewer.
    std::shared_ptr<orv::Preferences> loadPreferences(std::shared_ptr<orv::IPreferencesRegistry>) override
    {
        return nullptr;
    }
    void savePreferences(std::shared_ptr<orv::IPreferencesRegistry>, std::shared_ptr<orv::Preferences>) override {}
    bool takes(wchar_t const* path) override;
    orvexp::Status save(wchar_t const* path, std::shared_ptr<orv::IDocument> const& document,
                        std::shared_ptr<orv::Preferences> preferences, orv::IStatusManager* status) override;
    wchar_t const* unwrittenBeside() override { return beside.c_str(); }

protected:
    /// `identityText` as in IPlugin; `fileExtensions` in lower case, without the point.
    Exporter(wchar_t const* exporterName, wchar_t const* identityText, std::vector<std::wstring> fileExtensions);

private:
    /// Writes to the job's file; throws where that fails.
    virtual void write(Job const& job) = 0;

    wchar_t const* name;
    orv::GUID ownId;
    std::vector<std::wstring> extensions;
    std::wstring beside;
};

} // namespace orvexport
