#include "exporters/prc/PrcReader.h"

#include "exporters/prc/Compression.h"
#include "exporters/prc/FormatError.h"
#include "exporters/prc/SectionParsers.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <new>

namespace prc
{

namespace
{

constexpr std::size_t largestSection = std::size_t{1} << 30;

// Little-endian numbers of the headers.
class HeaderReader
{
public:
    explicit HeaderReader(std::span<std::uint8_t const> content) : bytes(content) {}

    std::uint32_t number()
    {
        std::uint32_t value = 0;
        for (int shift = 0; shift < 32; shift += 8)
            value |= static_cast<std::uint32_t>(byte()) << shift;
        return value;
    }
    UniqueId id()
    {
        UniqueId result;
        for (auto& word : result)
            word = number();
        return result;
    }
    // Versions and identity of a start header.
    UniqueId start(std::uint32_t& minimal, std::uint32_t& authoring)
    {
        for (char const c : {'P', 'R', 'C'})
            if (byte() != static_cast<std::uint8_t>(c))
                throw FormatError("this is not a PRC file");
        minimal = number();
        authoring = number();
        if (minimal > formatVersion)
            throw FormatError("the file was written for a newer version of the format");
        UniqueId const result = id();
        id(); // application
        return result;
    }

private:
    std::uint8_t byte()
    {
        if (position >= bytes.size())
            throw FormatError("the file ends within its header");
        return bytes[position++];
    }

    std::span<std::uint8_t const> bytes;
    std::size_t position = 0;
};

void readHeaders(std::span<std::uint8_t const> file, FileFacts& facts)
{
    HeaderReader header(file);
    facts.fileId = header.start(facts.minimalVersion, facts.authoringVersion);
    if (header.number() != 1)
        throw FormatError("the file has not exactly one file structure");
    facts.fileStructureId = header.id();
    header.number();
    if (header.number() != sectionCount)
        throw FormatError("the file structure has not six sections");
    for (auto& offset : facts.offsets)
        offset = header.number();
    facts.modelFileStart = header.number();
    facts.modelFileEnd = header.number();
    if (header.number() != 0)
        throw FormatError("the file holds pictures, which are not read");

    auto all = std::vector<std::uint32_t>(facts.offsets.begin(), facts.offsets.end());
    all.insert(all.begin(), fileHeaderSize - 1);
    all.push_back(facts.modelFileStart);
    all.push_back(facts.modelFileEnd);
    if (std::adjacent_find(all.begin(), all.end(), std::greater_equal<>()) != all.end() ||
        facts.modelFileEnd != file.size())
        throw FormatError("the sections don't fill the file");

    HeaderReader own(file.subspan(facts.offsets[0], facts.offsets[1] - facts.offsets[0]));
    std::uint32_t minimal = 0;
    std::uint32_t authoring = 0;
    if (own.start(minimal, authoring) != facts.fileStructureId || facts.fileStructureId == facts.fileId)
        throw FormatError("the identities of the file are at odds");
    if (minimal != facts.minimalVersion || authoring != facts.authoringVersion)
        throw FormatError("the versions of the file are at odds");
    if (own.number() != 0)
        throw FormatError("the file holds pictures, which are not read");
}

bool encloses(Box const& outer, Box const& inner)
{
    // Boxes were computed by whoever wrote the file, perhaps in single precision.
    double size = 0;
    for (std::size_t i = 0; i < 3; ++i)
        size = std::max(size, inner.maximum[i] - inner.minimum[i]);
    double const slack = 1e-5 * size + 1e-9;
    for (std::size_t i = 0; i < 3; ++i)
        if (outer.minimum[i] > inner.minimum[i] + slack || outer.maximum[i] < inner.maximum[i] - slack)
            return false;
    return true;
}

void check(Scene const& scene, FileFacts const& facts, std::vector<Box> const& boxes,
           std::vector<std::uint32_t>& numbers)
{
    if (auto const problem = problemOf(scene))
        throw FormatError(*problem);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        Box const content = boxOf(scene.parts[i], scene.meshes);
        if (!boxes[i].empty && !content.empty && !encloses(boxes[i], content))
            throw FormatError("a part is larger than it says");
    }
    std::sort(numbers.begin(), numbers.end());
    if (std::adjacent_find(numbers.begin(), numbers.end()) != numbers.end() || (!numbers.empty() && numbers[0] == 0))
        throw FormatError("two entities have the same number");
    if (!numbers.empty() && numbers.back() >= facts.nextEntityNumber)
        throw FormatError("an entity's number is not below the next free one");
}

Scene readSections(std::span<std::uint8_t const> file, FileFacts& facts)
{
    Scene scene;
    std::vector<Box> boxes;
    std::vector<std::uint32_t> numbers;
    std::array<std::uint32_t, sectionCount + 1> limits;
    std::copy(facts.offsets.begin() + 1, facts.offsets.end(), limits.begin());
    limits[sectionCount - 1] = facts.modelFileStart;
    limits[sectionCount] = facts.modelFileEnd;

    auto const section = [&](std::size_t i, auto const& parse) {
        auto const content = decompressed(file.subspan(limits[i], limits[i + 1] - limits[i]), largestSection);
        facts.unpackedSizes[i] = content.size();
        SectionReader in(content, numbers);
        parse(in);
    };
    section(0, [&](SectionReader& in) { readGlobals(in, scene, facts); });
    section(1, [&](SectionReader& in) { readTree(in, scene, facts, boxes); });
    section(2, [&](SectionReader& in) { readTessellation(in, scene, facts.authoringVersion); });
    section(3, [&](SectionReader& in) { readEmpty(in, Entity::geometry); });
    section(4, [&](SectionReader& in) { readEmpty(in, Entity::extraGeometry); });
    section(5, [&](SectionReader& in) { readModelFile(in, scene, facts); });
    check(scene, facts, boxes, numbers);
    return scene;
}

} // namespace

ReadResult read(std::span<std::uint8_t const> file)
{
    ReadResult result;
    try {
        readHeaders(file, result.facts);
        result.scene = readSections(file, result.facts);
    } catch (FormatError const& error) {
        result.problem = std::string("The PRC file can't be read: ") + error.what() + ".";
    } catch (std::bad_alloc const&) {
        result.problem = "The PRC file can't be read: there is not enough memory.";
    }
    return result;
}

ReadResult readFile(std::filesystem::path const& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::vector<std::uint8_t> const content{std::istreambuf_iterator<char>(stream), {}};
    if (!stream.is_open() || stream.bad()) {
        ReadResult result;
        result.problem = "Can't read \"" + path.string() + "\": check that the file exists and that you may open it.";
        return result;
    }
    return read(content);
}

} // namespace prc
