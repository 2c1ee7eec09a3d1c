// Draws a 3D annotation's artwork by the rules of ISO 32000-1, 13.6, with a depth buffer and nothing of the product's.
//
// The camera stands at the origin of its coordinates, looks along their positive z axis and has the y axis straight up
// (13.6.5). The standard's words have the x axis to the right, which a rotation can't give where models stand in
// right-handed coordinates as PRC's do: it would show them mirrored. The matrices that readers and writers of such
// files exchange are rotations, with x to the left; two published ones were checked by hand (rows left, up, forward).
//
// Perspective (Table 305, FOV and PS): the angle is that of a cone around the z axis whose circle on the near plane has
// the diameter of the named side of the view box. Orthographic (OS, OB): x and y times the scale are points of the
// page.

#include "exporters/pdf/ArtworkPicture.h"

#include "exporters/pdf/Instances.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvtest
{

namespace
{

using Point = std::array<double, 3>;

/// A corner on the picture: pixels from its upper left corner, and the distance along the camera's axis.
struct Corner {
    double x = 0;
    double y = 0;
    double depth = 0;
};

class Drawing
{
public:
    Drawing(StoredView const& stored, double pixelsPerPoint) : view(stored)
    {
        picture.width = static_cast<int>(std::lround(view.width * pixelsPerPoint));
        picture.height = static_cast<int>(std::lround(view.height * pixelsPerPoint));
        picture.pixels.resize(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
        if (view.orthographic) {
            EXPECT_EQ(view.binding, "/Absolute");
            pixelsPerUnit = view.scale * pixelsPerPoint;
        } else {
            double const side = view.fieldOfViewOf == "/H"     ? picture.height
                                : view.fieldOfViewOf == "/W"   ? picture.width
                                : view.fieldOfViewOf == "/Min" ? std::min(picture.width, picture.height)
                                                               : std::max(picture.width, picture.height);
            pixelsPerUnit = side / 2 / std::tan(view.fieldOfView * std::numbers::pi / 360);
        }
    }

    ArtworkPicture draw()
    {
        eachInstance(view.artwork,
                     [this](prc::Occurrence const& occurrence, prc::Part const& part, prc::Matrix const& world) {
                         if (!occurrence.hidden) {
                             drawPart(part, world);
                         }
                         ++instance;
                     });
        return std::move(picture);
    }

private:
    void drawPart(prc::Part const& part, prc::Matrix const& world)
    {
        for (auto const& body : part.bodies) {
            if (!body.mesh || body.hidden) {
                continue;
            }
            auto const& mesh = view.artwork.meshes[*body.mesh];
            std::vector<Corner> corners;
            for (std::size_t i = 0; i < mesh.points.size(); i += 3) {
                corners.push_back(cornerOf(pointIn(world, &mesh.points[i])));
            }
            std::size_t triangle = 0;
            for (auto const& face : mesh.faces) {
                for (std::size_t i = 0; i < face.triangles; ++i, ++triangle) {
                    auto const style = face.styles.empty()       ? body.style
                                       : face.styles.size() == 1 ? face.styles[0]
                                                                 : face.styles[i];
                    auto const* const points = &mesh.pointIndices[3 * triangle];
                    fill(corners[points[0]], corners[points[1]], corners[points[2]],
                         view.artwork.styles[style.value()]);
                }
            }
        }
    }

    Corner cornerOf(Point const& world) const
    {
        auto const seen = view.fromWorld(world);
        double const factor = pixelsPerUnit / (view.orthographic ? 1 : seen[2]);
        return {picture.width / 2.0 - seen[0] * factor, picture.height / 2.0 - seen[1] * factor, seen[2]};
    }

    /// Pixels whose middle lies in the triangle. Linear on the picture is the depth itself without perspective, its
    /// reciprocal with it.
    void fill(Corner const& a, Corner const& b, Corner const& c, prc::Style const& style)
    {
        if (!view.orthographic && (a.depth <= 0 || b.depth <= 0 || c.depth <= 0)) {
            return; // reaches behind the camera
        }
        double const area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
        if (area == 0) {
            return;
        }
        auto const first = [](double x) { return std::max(0, static_cast<int>(std::ceil(x - 0.5))); };
        auto const last = [](double x, int most) { return std::min(most - 1, static_cast<int>(std::floor(x - 0.5))); };
        auto const value = [this](double depth) { return view.orthographic ? depth : 1 / depth; };
        for (int row = first(std::min({a.y, b.y, c.y})); row <= last(std::max({a.y, b.y, c.y}), picture.height);
             ++row) {
            for (int column = first(std::min({a.x, b.x, c.x}));
                 column <= last(std::max({a.x, b.x, c.x}), picture.width); ++column) {
                double const x = column + 0.5;
                double const y = row + 0.5;
                double const ofB = ((x - a.x) * (c.y - a.y) - (y - a.y) * (c.x - a.x)) / area;
                double const ofC = ((b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x)) / area;
                double const ofA = 1 - ofB - ofC;
                if (ofA >= 0 && ofB >= 0 && ofC >= 0) {
                    double const found = ofA * value(a.depth) + ofB * value(b.depth) + ofC * value(c.depth);
                    mark(column, row, view.orthographic ? found : 1 / found, style);
                }
            }
        }
    }

    void mark(int column, int row, double depth, prc::Style const& style)
    {
        auto& pixel = picture.pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width) +
                                     static_cast<std::size_t>(column)];
        if (style.opacity < 255) {
            if (depth < pixel.seeThroughDepth) {
                pixel.seeThroughDepth = depth;
                pixel.seeThrough = instance;
            }
        } else if (depth < pixel.depth) {
            pixel.depth = depth;
            pixel.instance = instance;
            pixel.color = {style.color.red, style.color.green, style.color.blue};
        }
    }

    StoredView const& view;
    double pixelsPerUnit = 1;
    ArtworkPicture picture;
    int instance = 0;
};

} // namespace

ArtworkPicture drawArtwork(StoredView const& view, double pixelsPerPoint)
{
    return Drawing(view, pixelsPerPoint).draw();
}

} // namespace orvtest
