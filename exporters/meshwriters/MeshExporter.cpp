#include "exporters/meshwriters/MeshExporter.h"

#include "exporters/base/PlacedParts.h"
#include "exporters/base/Units.h"
#include "exporters/meshwriters/MeshScene.h"
#include "exporters/meshwriters/OutputSystem.h"

#include <assimp/Exporter.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/scene.h>

#include <filesystem>
#include <new>
#include <string>

namespace meshwriters
{

namespace
{

constexpr double madePart = 0.4;
constexpr double writtenPart = 0.95;

class ProgressBridge final : public Assimp::ProgressHandler
{
public:
    explicit ProgressBridge(orvexport::Progress& bar) : progress(bar) {}
    bool Update(float done) override
    {
        if (done >= 0) { // less than nothing stands for "not known"
            progress.set(madePart + (writtenPart - madePart) * static_cast<double>(done));
        }
        return true;
    }

private:
    orvexport::Progress& progress;
};

/// The path by which Assimp knows the wanted file, and from which it makes the name of a file beside it, which then
/// stands in a line of text: without the characters that would end the line or the name. Never the path of another
/// model, whose file beside it would be replaced.
std::filesystem::path nameableIn(std::filesystem::path const& path)
{
    std::string stem = path.stem().string();
    for (char& c : stem) {
        auto const code = static_cast<unsigned char>(c);
        if (code < 0x20 || code == 0x7F || c == '\\') {
            c = '_';
        }
    }
    if (stem == path.stem().string()) {
        return path;
    }
    std::error_code unknown;
    auto const named = [&](std::string const& name) { return path.parent_path() / (name + path.extension().string()); };
    auto result = named(stem);
    for (int number = 2; std::filesystem::exists(result, unknown); ++number) {
        result = named(stem + '_' + std::to_string(number));
    }
    return result;
}

} // namespace

MeshExporter::MeshExporter(Format const& written)
    : Exporter(written.library, written.identity, {written.extension}), format(written)
{
}

void MeshExporter::write(orvexport::Job const& job)
{
    auto const parts = orvexport::placedParts(job.document);
    if (parts.empty()) {
        throw orvexport::NothingToWrite();
    }
    SceneOptions options;
    options.millimetresPerUnit = orvexport::millimetresPerUnit(job.preferences);
    options.mostInMesh = format.mostInMesh;
    options.names = format.names;
    options.progress = [&job](double done) { job.progress.set(madePart * done); };
    auto const scene = makeScene(parts, options);

    if (format.mostNodes > 0 && scene->mRootNode->mNumChildren + scene->mNumMeshes > format.mostNodes) {
        throw orvexport::OutputError(orvexp::Status::modelTooLarge, "the format can't count so many parts");
    }
    Assimp::Exporter exporter;
    auto const named = nameableIn(job.path);
    auto* const output = new OutputSystem(named, job.file); // the exporter's from here on, as is the bridge
    exporter.SetIOHandler(output);
    exporter.SetProgressHandler(new ProgressBridge(job.progress));
    aiReturn const result = exporter.Export(scene.get(), format.assimpId, named.c_str());
    output->check();
    if (result == aiReturn_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    if (result != aiReturn_SUCCESS) {
        throw orvexport::OutputError(exporter.GetErrorString());
    }
    output->moveOthers(job.companions);
}

} // namespace meshwriters
