#include "exporters/prc/FormatError.h"
#include "exporters/prc/SectionParsers.h"

namespace prc
{

namespace
{

constexpr std::uint32_t singleNormal = 0x40000000;
constexpr std::uint32_t oldestWithLoops = 7039;
constexpr std::uint32_t oldestWithRecalculation = 7047;

struct RawFace {
    std::vector<std::optional<std::size_t>> styles;
    std::uint32_t kinds = 0;
    std::size_t start = 0;
    std::vector<std::uint32_t> sizes;
};

std::vector<std::uint32_t> integers(SectionReader& in)
{
    std::vector<std::uint32_t> list(in.count());
    for (auto& number : list)
        number = in.unsignedInteger();
    return list;
}

// Reads over the colours of `corners` corners: the first as bytes, each following one only where it differs.
void skipVertexColors(SectionReader& in, std::size_t corners)
{
    std::uint64_t const bits = in.boolean() ? 32 : 24;
    if (in.boolean())
        throw FormatError("the file holds optimised vertex colours, which are not read");
    for (std::size_t i = 0; i < corners; ++i)
        if (i == 0 || !in.boolean())
            in.skip(bits);
}

// Takes a mesh's index array apart, face by face.
class Triangles
{
public:
    Triangles(std::vector<std::uint32_t> const& content, bool withNormals, Mesh& target)
        : indices(content), hasNormals(withNormals), mesh(target)
    {
    }

    // The number of triangles that the face adds to the mesh. `corners` becomes the number of its point indices.
    std::size_t add(RawFace const& face, std::size_t& corners)
    {
        if (face.start != position)
            throw FormatError("the faces of a mesh don't follow one another");
        std::size_t const before = mesh.triangleCount();
        std::size_t size = 0;
        corners = 0;
        auto const nextSize = [&] {
            if (size >= face.sizes.size())
                throw FormatError("a face lacks a size");
            return face.sizes[size++];
        };
        for (std::uint32_t kind = 1; kind != 0; kind <<= 1) {
            if (!(face.kinds & kind))
                continue;
            bool const fan = kind == triangulated::fans || kind == triangulated::oneNormalFans;
            bool const strip = kind == triangulated::strips || kind == triangulated::oneNormalStrips;
            bool const oneNormal = kind >= triangulated::oneNormalTriangles;
            if (fan || strip) {
                for (std::uint32_t rest = nextSize(); rest > 0; --rest)
                    corners += chain(nextSize(), fan, oneNormal);
            } else if (kind == triangulated::triangles || kind == triangulated::oneNormalTriangles) {
                std::uint32_t const count = nextSize();
                single(count, oneNormal);
                corners += std::size_t{3} * count;
            } else {
                throw FormatError("a face holds triangles of a kind that is not read");
            }
        }
        if (size != face.sizes.size())
            throw FormatError("a face has a size too many");
        return mesh.triangleCount() - before;
    }

    void expectEnd() const
    {
        if (position != indices.size())
            throw FormatError("the faces of a mesh don't use all of its indices");
    }

private:
    struct Corner {
        std::uint32_t normal, point;
    };

    std::uint32_t next()
    {
        if (position >= indices.size())
            throw FormatError("a face reaches beyond the indices of its mesh");
        std::uint32_t const index = indices[position++];
        if (index % 3 != 0)
            throw FormatError("an index doesn't stand at the start of a point or normal");
        return index / 3;
    }

    void triangle(Corner const& a, Corner const& b, Corner const& c)
    {
        for (Corner const& corner : {a, b, c}) {
            mesh.pointIndices.push_back(corner.point);
            if (hasNormals)
                mesh.normalIndices.push_back(corner.normal);
        }
    }

    Corner corner(bool ownNormal, std::uint32_t shared)
    {
        std::uint32_t const normal = hasNormals && ownNormal ? next() : shared;
        return {normal, next()};
    }

    void single(std::uint32_t count, bool oneNormal)
    {
        for (; count > 0; --count) {
            std::uint32_t const shared = hasNormals && oneNormal ? next() : 0;
            Corner const a = corner(!oneNormal, shared);
            Corner const b = corner(!oneNormal, shared);
            triangle(a, b, corner(!oneNormal, shared));
        }
    }

    // A fan or a strip. One-normal kinds say by a bit of the size whether they really have just one.
    std::size_t chain(std::uint32_t size, bool fan, bool oneNormalKind)
    {
        bool const oneNormal = oneNormalKind && (size & singleNormal);
        std::uint32_t const points = oneNormalKind ? size & (singleNormal - 1) : size;
        std::uint32_t const shared = hasNormals && oneNormal ? next() : 0;
        Corner first{}, before{};
        for (std::uint32_t i = 0; i < points; ++i) {
            Corner const here = corner(!oneNormal, shared);
            if (i >= 2 && !fan && i % 2 != 0) // every other triangle of a strip runs the other way round
                triangle(before, first, here);
            else if (i >= 2)
                triangle(first, before, here);
            if (i == 0 || (!fan && i >= 2))
                first = i == 0 ? here : before;
            before = here;
        }
        return points;
    }

    std::vector<std::uint32_t> const& indices;
    bool hasNormals;
    Mesh& mesh;
    std::size_t position = 0;
};

RawFace readFaceHead(SectionReader& in)
{
    in.expect(Entity::face, "a face");
    RawFace face;
    face.styles.resize(in.count());
    for (auto& style : face.styles)
        style = in.reference();
    in.unsignedInteger(); // wire data
    integers(in);
    face.kinds = in.unsignedInteger();
    face.start = in.unsignedInteger();
    face.sizes = integers(in);
    in.expectNone("textured triangles");
    return face;
}

Mesh readMesh(SectionReader& in, std::uint32_t authoringVersion)
{
    Mesh mesh;
    in.boolean();
    mesh.points = in.numbers(in.count(2));
    in.boolean();
    if (authoringVersion >= oldestWithLoops)
        in.boolean();
    if (authoringVersion >= oldestWithRecalculation && in.boolean()) {
        in.character();
        in.real();
    }
    mesh.normals = in.numbers(in.count(2));
    integers(in); // wires
    auto const indices = integers(in);
    Triangles triangles(indices, !mesh.normals.empty(), mesh);
    for (std::uint32_t rest = in.count(); rest > 0; --rest) {
        RawFace const raw = readFaceHead(in);
        std::size_t corners = 0;
        Face face{triangles.add(raw, corners), {}};
        if (in.boolean())
            skipVertexColors(in, corners);
        if (!raw.styles.empty())
            in.unsignedInteger(); // behaviour
        for (auto const& style : raw.styles)
            if (style)
                face.styles.push_back(*style);
        mesh.faces.push_back(std::move(face));
    }
    triangles.expectEnd();
    in.numbers(in.count(2)); // texture coordinates
    return mesh;
}

void skipPolylines(SectionReader& in)
{
    in.boolean();
    in.numbers(in.count(2));
    integers(in);
    if (in.boolean())
        throw FormatError("the file holds coloured polylines, which are not read");
}

} // namespace

void readTessellation(SectionReader& in, Scene& scene, std::uint32_t authoringVersion)
{
    in.expect(Entity::tessellation, "the tessellation section");
    in.base();
    for (std::uint32_t rest = in.count(); rest > 0; --rest) {
        Entity const type = in.type();
        if (type == Entity::mesh) {
            scene.meshes.push_back(readMesh(in, authoringVersion));
        } else if (type == Entity::polylines) {
            skipPolylines(in);
            scene.meshes.push_back({{}, {}, {}, {}, {{0, {}}}}); // keeps the numbering of the meshes
        } else {
            throw FormatError("the file holds compressed meshes or another tessellation that is not read");
        }
    }
    in.skipUserData();
    in.expectEnd();
}

} // namespace prc
