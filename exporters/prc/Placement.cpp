#include "exporters/prc/Placement.h"

#include "exporters/prc/FormatError.h"
#include "exporters/prc/SectionReader.h"
#include "exporters/prc/SectionWriter.h"

#include <array>
#include <cmath>
#include <optional>

namespace prc
{

namespace
{

using Vector = std::array<double, 3>;

Vector column(Matrix const& m, std::size_t i)
{
    return {m[4 * i], m[4 * i + 1], m[4 * i + 2]};
}

double dot(Vector const& a, Vector const& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector cross(Vector const& a, Vector const& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector scaled(Vector const& a, double factor)
{
    return {a[0] * factor, a[1] * factor, a[2] * factor};
}

// The uniform scale of a matrix that rotates, scales uniformly and translates; nothing for any other. The tolerance is
// that of placements that were computed in single precision.
std::optional<double> similarityScale(Matrix const& m)
{
    constexpr double tolerance = 1e-6;
    if (m[3] != 0 || m[7] != 0 || m[11] != 0 || m[15] != 1)
        return {};
    double const scale = std::sqrt(dot(column(m, 0), column(m, 0)));
    if (!(scale > 0) || !std::isfinite(scale))
        return {};
    Vector const x = scaled(column(m, 0), 1 / scale);
    Vector const y = scaled(column(m, 1), 1 / scale);
    Vector const z = cross(x, y);
    for (std::size_t i = 0; i < 3; ++i)
        if (std::abs(z[i] - m[8 + i] / scale) > tolerance)
            return {};
    if (std::abs(dot(x, y)) > tolerance || std::abs(dot(y, y) - 1) > tolerance)
        return {};
    return scale;
}

Vector readVector(SectionReader& in)
{
    double const x = in.real();
    double const y = in.real();
    return {x, y, in.real()};
}

Matrix readCartesian(SectionReader& in)
{
    std::uint8_t const flags = in.character();
    Vector origin{0, 0, 0};
    Vector x{1, 0, 0};
    Vector y{0, 1, 0};
    Vector z{0, 0, 1};
    Vector scale{1, 1, 1};
    std::array<double, 4> row{0, 0, 0, 1};
    if (flags & cartesian::translation)
        origin = readVector(in);
    if (flags & cartesian::nonOrthogonal) {
        x = readVector(in);
        y = readVector(in);
        z = readVector(in);
    } else {
        if (flags & cartesian::rotation) {
            x = readVector(in);
            y = readVector(in);
        }
        z = cross(x, y);
        if (flags & cartesian::mirror)
            z = scaled(z, -1);
    }
    if (flags & cartesian::nonUniformScale)
        scale = readVector(in);
    if (flags & cartesian::uniformScale) {
        double const factor = in.real();
        scale = {factor, factor, factor};
    }
    if (flags & cartesian::homogeneous)
        for (double& element : row)
            element = in.real();
    return {x[0] * scale[0], x[1] * scale[0], x[2] * scale[0], row[0],          y[0] * scale[1], y[1] * scale[1],
            y[2] * scale[1], row[1],          z[0] * scale[2], z[1] * scale[2], z[2] * scale[2], row[2],
            origin[0],       origin[1],       origin[2],       row[3]};
}

} // namespace

void writePlacement(SectionWriter& out, Matrix const& matrix)
{
    auto const scale = similarityScale(matrix);
    if (!scale) {
        out.type(Entity::generalTransformation);
        for (double const element : matrix)
            out.real(element);
        return;
    }
    bool const rotated = column(matrix, 0) != Vector{1, 0, 0} || column(matrix, 1) != Vector{0, 1, 0};
    bool const resized = std::abs(*scale - 1) > 1e-6;
    double const factor = resized ? *scale : 1;
    out.type(Entity::cartesianTransformation);
    out.character(static_cast<std::uint8_t>(cartesian::translation | (rotated ? cartesian::rotation : 0) |
                                            (resized ? cartesian::uniformScale : 0)));
    out.vector(matrix[12], matrix[13], matrix[14]);
    if (rotated)
        for (std::size_t i = 0; i < 2; ++i) {
            Vector const axis = scaled(column(matrix, i), 1 / factor);
            out.vector(axis[0], axis[1], axis[2]);
        }
    if (resized)
        out.real(factor);
}

Matrix readPlacement(SectionReader& in)
{
    std::uint32_t const type = in.unsignedInteger();
    if (type == static_cast<std::uint32_t>(Entity::cartesianTransformation))
        return readCartesian(in);
    if (type != static_cast<std::uint32_t>(Entity::generalTransformation))
        throw FormatError("a placement is of a kind that isn't known");
    Matrix matrix;
    for (double& element : matrix)
        element = in.real();
    return matrix;
}

} // namespace prc
