#include "exporters/orvwriter/FaceBorders.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <utility>

namespace orvwriter
{

namespace
{

using Segment = std::pair<std::uint32_t, std::uint32_t>;

/// Gives points that coincide one number.
class Points
{
public:
    std::uint32_t numberOf(Point const& point)
    {
        auto const [place, isNew] = numbers.try_emplace(point, static_cast<std::uint32_t>(list.size()));
        if (isNew) {
            list.push_back(point);
        }
        return place->second;
    }
    Point const& at(std::uint32_t number) const { return list[number]; }
    std::size_t size() const { return list.size(); }

private:
    std::map<Point, std::uint32_t> numbers;
    std::vector<Point> list;
};

class Borders
{
public:
    explicit Borders(orvsg::Mesh const& shown) : mesh(shown)
    {
        for (auto const& face : mesh.faces) {
            addFace(face);
        }
    }

    std::vector<std::vector<Point>> chains()
    {
        std::vector<std::vector<std::uint32_t>> neighbours(points.size());
        for (auto const& [a, b] : segments) {
            neighbours[a].push_back(b);
            neighbours[b].push_back(a);
        }
        std::vector<std::vector<Point>> result;
        // Ends and crossings first, so that no line is cut in two; what remains are rings.
        for (bool const isRing : {false, true}) {
            for (std::uint32_t start = 0; start < points.size(); ++start) {
                while (!neighbours[start].empty() && (isRing || neighbours[start].size() != 2)) {
                    result.push_back(chainFrom(start, neighbours));
                }
            }
        }
        return result;
    }

private:
    std::vector<Point> chainFrom(std::uint32_t start, std::vector<std::vector<std::uint32_t>>& neighbours) const
    {
        std::vector<Point> chain{points.at(start)};
        std::uint32_t at = start;
        do {
            std::uint32_t const next = neighbours[at].back();
            neighbours[at].pop_back();
            std::erase(neighbours[next], at);
            chain.push_back(points.at(next));
            at = next;
        } while (neighbours[at].size() == 1 && at != start);
        return chain;
    }

    void addFace(orvsg::MeshFace const& face)
    {
        std::map<Segment, int> uses;
        std::size_t const vertices = mesh.positions.size() / 3;
        std::size_t const triangles = mesh.triangles.size() / 3;
        std::size_t const first = std::min<std::size_t>(face.firstTriangle, triangles);
        std::size_t const last = std::min<std::size_t>(first + face.triangleCount, triangles);
        for (std::size_t triangle = first; triangle < last; ++triangle) {
            auto const* const corner = &mesh.triangles[3 * triangle];
            if (std::any_of(corner, corner + 3, [&](std::uint32_t i) { return i >= vertices || !isFinite(i); })) {
                continue;
            }
            std::uint32_t const a = numberOf(corner[0]);
            std::uint32_t const b = numberOf(corner[1]);
            std::uint32_t const c = numberOf(corner[2]);
            for (auto const& [from, to] : {Segment{a, b}, Segment{b, c}, Segment{c, a}}) {
                ++uses[std::minmax(from, to)];
            }
        }
        for (auto const& [segment, count] : uses) {
            if (count == 1 && segment.first != segment.second) {
                segments.insert(segment);
            }
        }
    }

    Point pointOf(std::uint32_t vertex) const
    {
        auto const* const p = &mesh.positions[std::size_t{3} * vertex];
        return {p[0], p[1], p[2]};
    }
    bool isFinite(std::uint32_t vertex) const
    {
        auto const point = pointOf(vertex);
        return std::all_of(point.begin(), point.end(), [](float x) { return std::isfinite(x); });
    }
    std::uint32_t numberOf(std::uint32_t vertex) { return points.numberOf(pointOf(vertex)); }

    orvsg::Mesh const& mesh;
    Points points;
    std::set<Segment> segments;
};

} // namespace

std::vector<std::vector<Point>> faceBorders(orvsg::Mesh const& mesh)
{
    return Borders(mesh).chains();
}

} // namespace orvwriter
