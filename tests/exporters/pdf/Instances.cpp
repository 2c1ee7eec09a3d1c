#include "exporters/pdf/Instances.h"

namespace orvtest
{

namespace
{

prc::Matrix product(prc::Matrix const& a, prc::Matrix const& b)
{
    prc::Matrix result{};
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            for (std::size_t k = 0; k < 4; ++k) {
                result[4 * column + row] += a[4 * k + row] * b[4 * column + k];
            }
        }
    }
    return result;
}

} // namespace

std::array<double, 3> pointIn(prc::Matrix const& world, double const* point)
{
    std::array<double, 3> result{};
    for (std::size_t row = 0; row < 3; ++row) {
        result[row] = world[row] * point[0] + world[4 + row] * point[1] + world[8 + row] * point[2] + world[12 + row];
    }
    return result;
}

void eachInstance(prc::Scene const& scene,
                  std::function<void(prc::Occurrence const&, prc::Part const&, prc::Matrix const&)> const& call)
{
    std::function<void(std::size_t, prc::Matrix const&)> const walk = [&](std::size_t index, prc::Matrix const& above) {
        auto const& occurrence = scene.occurrences[index];
        auto const world = product(above, occurrence.placement);
        auto const part = occurrence.prototype ? scene.occurrences[*occurrence.prototype].part : occurrence.part;
        if (part) {
            call(occurrence, scene.parts[*part], world);
        }
        for (auto const child : occurrence.children) {
            walk(child, world);
        }
    };
    walk(scene.root, prc::identity);
}

} // namespace orvtest
