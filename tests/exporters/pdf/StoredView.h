#pragma once

#include "exporters/prc/Scene.h"

#include <array>
#include <filesystem>
#include <string>

namespace orvtest
{

/// What a reader of 3D content finds in a PDF file of one page with one 3D annotation: the artwork, and the view in
/// which it opens.
struct StoredView {
    prc::Scene artwork;
    std::string name;
    std::array<double, 12> cameraToWorld{}; ///< as the file has it: three rows of the rotation, then the translation
    double orbit = 0;                       ///< along the camera's z axis to what it turns about
    bool orthographic = false;
    double fieldOfView = 0;              ///< degrees
    std::string fieldOfViewOf;           ///< the side of the view box that the angle spans: "/H", "/W", "/Min", "/Max"
    double scale = 0;                    ///< points to a unit of the artwork, orthographic only
    std::string binding;                 ///< "/Absolute" where that is all of the scale
    std::array<double, 3> background{};  ///< 0 to 1
    double left = 0;                     ///< of the annotation in points from the page's upper left corner
    double top = 0;                      ///< likewise
    double width = 0;                    ///< points
    double height = 0;                   ///< points
    std::array<double, 3> camera() const ///< its place in the world
    {
        return {cameraToWorld[9], cameraToWorld[10], cameraToWorld[11]};
    }
    /// Takes a point of the world to the camera: x to the left, y up, z away from the viewer.
    std::array<double, 3> fromWorld(std::array<double, 3> const& point) const;
};

/// Reads with qpdf and the PRC reader; what isn't there fails the test and throws.
StoredView storedView(std::filesystem::path const& pdf);

} // namespace orvtest
