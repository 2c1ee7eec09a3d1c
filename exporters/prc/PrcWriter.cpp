#include "exporters/prc/PrcWriter.h"

#include "exporters/output/OutputFile.h"
#include "exporters/prc/Compression.h"
#include "exporters/prc/Sections.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <random>
#include <stdexcept>

namespace prc
{

namespace
{

// Where the steps of the work end.
constexpr double encodedPart = 0.2;
constexpr double packedPart = 0.9;

void add(Bytes& out, std::uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void addStartHeader(Bytes& out, UniqueId const& id)
{
    for (char const c : {'P', 'R', 'C'})
        out.push_back(static_cast<std::uint8_t>(c));
    add(out, formatVersion); // least version for reading
    add(out, formatVersion); // version of the writer
    for (std::uint32_t const word : id)
        add(out, word);
    for (int word = 0; word < 4; ++word) // application
        add(out, 0);
}

UniqueId randomId()
{
    std::random_device source;
    UniqueId id;
    for (auto& word : id)
        word = source();
    return id;
}

// Sections in the order of the file; the last is the model file.
Bytes assembled(std::array<Bytes, sectionCount> const& sections, UniqueId const& fileId, UniqueId const& structureId)
{
    std::array<std::uint32_t, sectionCount + 2> offsets{fileHeaderSize, fileHeaderSize + fileStructureHeaderSize};
    std::uint64_t at = offsets[1];
    for (std::size_t i = 0; i < sectionCount; ++i) {
        at += sections[i].size();
        if (at > std::numeric_limits<std::uint32_t>::max())
            throw std::length_error("the model is too large for a PRC file, which ends at 4 GiB");
        offsets[i + 2] = static_cast<std::uint32_t>(at);
    }
    Bytes out;
    out.reserve(at);
    addStartHeader(out, fileId);
    add(out, 1); // file structures
    for (std::uint32_t const word : structureId)
        add(out, word);
    add(out, 0);
    add(out, sectionCount);
    for (std::uint32_t const offset : offsets)
        add(out, offset);
    add(out, 0); // uncompressed files
    addStartHeader(out, structureId);
    add(out, 0);
    for (auto const& section : sections)
        out.insert(out.end(), section.begin(), section.end());
    return out;
}

// Writes in pieces, so that a long file shows its progress. False where the work was cancelled.
bool writeAll(orvexport::OutputFile& file, Bytes const& content, std::function<bool(std::size_t)> const& written)
{
    constexpr std::size_t most = std::size_t{1} << 20;
    for (std::size_t done = 0; done < content.size();) {
        std::size_t const now = std::min(most, content.size() - done);
        file.write(content.data() + done, now);
        done += now;
        if (!written(done))
            return false;
    }
    return true;
}

Bytes encodeSound(Scene const& scene, WriteOptions const& options)
{
    bool goesOn = true;
    auto const report = [&](double done) {
        if (goesOn && options.progress)
            goesOn = options.progress(done);
        return goesOn;
    };
    std::size_t total = 1;
    for (auto const& mesh : scene.meshes)
        total += mesh.points.size() + mesh.pointIndices.size();
    std::size_t written = 0;

    EntityNumbers numbers;
    UniqueId const fileId = options.fileId.value_or(randomId());
    UniqueId const structureId = options.fileStructureId.value_or(randomId());
    std::array<Bytes, sectionCount> sections;
    sections[0] = compressed(globalsSection(scene, numbers));
    sections[1] = compressed(treeSection(scene, numbers));
    Bytes const meshes = tessellationSection(scene, [&](std::size_t i) {
        written += scene.meshes[i].points.size() + scene.meshes[i].pointIndices.size();
        return report(encodedPart * static_cast<double>(written) / static_cast<double>(total));
    });
    if (!report(encodedPart))
        return {};
    sections[2] =
        compressed(meshes, [&](double done) { return report(encodedPart + (packedPart - encodedPart) * done); });
    if (sections[2].empty())
        return {};
    sections[3] = compressed(emptySection(Entity::geometry));
    sections[4] = compressed(emptySection(Entity::extraGeometry));
    sections[5] = compressed(modelFileSection(scene, structureId));
    return assembled(sections, fileId, structureId);
}

WriteOutcome cannotWrite(std::filesystem::path const& path, orvexp::Status reason, std::string const& words)
{
    return {WriteOutcome::Result::cannotWrite, "Can't write \"" + path.string() + "\": " + words + ".", reason};
}

} // namespace

Bytes encode(Scene const& scene, WriteOptions const& options)
{
    if (auto const problem = problemOf(scene))
        throw std::invalid_argument(*problem);
    return encodeSound(scene, options);
}

WriteOutcome writeFile(Scene const& scene, std::filesystem::path const& path, WriteOptions const& options)
{
    using orvexp::Status;
    WriteOutcome const cancelled{WriteOutcome::Result::cancelled, "The export was cancelled.", Status::cannotWrite};
    try {
        if (auto const problem = problemOf(scene))
            return {WriteOutcome::Result::unsound, "The model can't be written as PRC: " + *problem + ".",
                    Status::cannotWrite};
        // Made first: a directory that takes no file is found before the long work, not after it.
        orvexport::OutputFile file(path);
        Bytes const content = encodeSound(scene, options);
        if (content.empty())
            return cancelled;
        double const all = static_cast<double>(content.size());
        bool const complete = writeAll(file, content, [&](std::size_t done) {
            return !options.progress ||
                   options.progress(packedPart + (1 - packedPart) * static_cast<double>(done) / all);
        });
        if (!complete)
            return cancelled;
        file.putInPlace();
        return {};
    } catch (std::bad_alloc const&) {
        return cannotWrite(path, Status::noMemory, "there is not enough memory");
    } catch (std::length_error const& error) {
        return cannotWrite(path, Status::modelTooLarge, error.what());
    } catch (orvexport::OutputError const& error) {
        return cannotWrite(path, error.status(), error.what());
    } catch (std::exception const& error) {
        return cannotWrite(path, Status::cannotWrite, error.what());
    }
}

} // namespace prc
