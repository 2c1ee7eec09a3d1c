#include "viewer/scene/CameraMotion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

using orvgl::Camera;
using orvviewer::StandardView;
using Point = orvmath::Tuple<float, 3>;

namespace
{

Camera frontCamera()
{
    Camera camera;
    camera.eye = Point(0.0F, -100.0F, 0.0F);
    camera.target = Point(0.0F, 0.0F, 0.0F);
    camera.up = Point(0.0F, 0.0F, 1.0F);
    return camera;
}

double distance(Point const& a, Point const& b)
{
    return std::hypot(double{a[0]} - b[0], double{a[1]} - b[1], double{a[2]} - b[2]);
}

void expectPoint(Point const& point, double x, double y, double z, double tolerance = 1e-3)
{
    EXPECT_NEAR(point[0], x, tolerance);
    EXPECT_NEAR(point[1], y, tolerance);
    EXPECT_NEAR(point[2], z, tolerance);
}

/// Where a point appears: fractions of the picture's height from its middle.
std::pair<double, double> projected(Camera const& camera, Point const& p)
{
    double f[3];
    double const d = distance(camera.eye, camera.target);
    for (unsigned char i = 0; i < 3; ++i) {
        f[i] = (double{camera.target[i]} - camera.eye[i]) / d;
    }
    double const u[3] = {camera.up[0], camera.up[1], camera.up[2]};
    double r[3] = {f[1] * u[2] - f[2] * u[1], f[2] * u[0] - f[0] * u[2], f[0] * u[1] - f[1] * u[0]};
    double const length = std::hypot(r[0], r[1], r[2]);
    double x = 0.0;
    double y = 0.0;
    double depth = 0.0;
    for (unsigned char i = 0; i < 3; ++i) {
        r[i] /= length;
    }
    double const v[3] = {r[1] * f[2] - r[2] * f[1], r[2] * f[0] - r[0] * f[2], r[0] * f[1] - r[1] * f[0]};
    for (unsigned char i = 0; i < 3; ++i) {
        double const arm = double{p[i]} - camera.eye[i];
        x += arm * r[i];
        y += arm * v[i];
        depth += arm * f[i];
    }
    double const height = orvviewer::pictureHeight(camera) * (camera.orthographic ? 1.0 : depth / d);
    return {x / height, y / height};
}

std::vector<Point> cornersOf(float size)
{
    std::vector<Point> corners;
    for (unsigned corner = 0; corner < 8; ++corner) {
        auto const sign = [corner, size](unsigned bit) { return (corner & bit) != 0 ? size : -size; };
        corners.emplace_back(sign(1), sign(2), sign(4));
    }
    return corners;
}

} // namespace

TEST(CameraMotion, PictureHeightFollowsFromDistanceAndFieldOfView)
{
    auto camera = frontCamera();
    camera.fieldOfView = 90.0F;
    EXPECT_NEAR(orvviewer::pictureHeight(camera), 200.0, 1e-3);
    camera.orthographic = true;
    EXPECT_NEAR(orvviewer::pictureHeight(camera), 200.0, 1e-3);
}

TEST(CameraMotion, OrbitTurnsTheEyeAboutTheTarget)
{
    auto camera = frontCamera();
    orvviewer::orbit(camera, std::numbers::pi / 2, 0.0);
    expectPoint(camera.eye, -100.0, 0.0, 0.0);
    expectPoint(camera.target, 0.0, 0.0, 0.0);
    orvviewer::orbit(camera, -std::numbers::pi / 2, 0.0);
    expectPoint(camera.eye, 0.0, -100.0, 0.0);
}

TEST(CameraMotion, OrbitUpwardsShowsTheModelFromBelow)
{
    auto camera = frontCamera();
    orvviewer::orbit(camera, 0.0, std::numbers::pi / 4);
    EXPECT_LT(camera.eye[2], 0.0F) << "the model turns with the pointer";
    EXPECT_NEAR(distance(camera.eye, camera.target), 100.0, 1e-3);
}

TEST(CameraMotion, ManySmallTurnsKeepTheDistance)
{
    auto camera = frontCamera();
    for (int i = 0; i < 5000; ++i) {
        orvviewer::orbit(camera, 0.013, 0.007);
    }
    EXPECT_NEAR(distance(camera.eye, camera.target), 100.0, 0.05);
    EXPECT_NEAR(distance(camera.up, Point(0.0F, 0.0F, 0.0F)), 1.0, 1e-3);
}

TEST(CameraMotion, PanMovesTheModelWithThePointer)
{
    auto camera = frontCamera();
    Point const grabbed(0.0F, 0.0F, 0.0F);
    orvviewer::pan(camera, 0.25, -0.1);
    auto const [x, y] = projected(camera, grabbed);
    EXPECT_NEAR(x, 0.25, 1e-6);
    EXPECT_NEAR(y, -0.1, 1e-6);
    EXPECT_NEAR(distance(camera.eye, camera.target), 100.0, 1e-3);
}

TEST(CameraMotion, ZoomKeepsThePointUnderThePointer)
{
    for (bool const orthographic : {false, true}) {
        auto camera = frontCamera();
        camera.orthographic = orthographic;
        Point const grabbed(12.0F, 0.0F, -7.0F);
        auto const before = projected(camera, grabbed);
        orvviewer::zoom(camera, 0.5, before.first, before.second);
        auto const after = projected(camera, grabbed);
        EXPECT_NEAR(after.first, before.first, 1e-5);
        EXPECT_NEAR(after.second, before.second, 1e-5);
        EXPECT_NEAR(distance(camera.eye, camera.target), 50.0, 1e-3);
    }
}

TEST(CameraMotion, ZoomEndsBeforeEyeAndTargetMeet)
{
    auto camera = frontCamera();
    for (int i = 0; i < 200; ++i) {
        orvviewer::zoom(camera, 0.5);
    }
    EXPECT_GT(distance(camera.eye, camera.target), 0.0);
    for (int i = 0; i < 400; ++i) {
        orvviewer::zoom(camera, 2.0);
    }
    EXPECT_TRUE(std::isfinite(camera.eye[1]));
}

TEST(CameraMotion, StandardViewsLookAlongTheAxes)
{
    struct Case {
        StandardView view;
        double eye[3];
        double up[3];
    };
    double const s = 1.0 / std::sqrt(3.0);
    Case const cases[] = {{StandardView::front, {0, -1, 0}, {0, 0, 1}},
                          {StandardView::back, {0, 1, 0}, {0, 0, 1}},
                          {StandardView::left, {-1, 0, 0}, {0, 0, 1}},
                          {StandardView::right, {1, 0, 0}, {0, 0, 1}},
                          {StandardView::top, {0, 0, 1}, {0, 1, 0}},
                          {StandardView::bottom, {0, 0, -1}, {0, -1, 0}},
                          {StandardView::isometric, {s, -s, s}, {-0.40825, 0.40825, 0.81650}}};
    for (auto const& entry : cases) {
        auto camera = frontCamera();
        camera.target = Point(10.0F, 20.0F, 30.0F);
        camera.eye = Point(10.0F, -80.0F, 30.0F);
        orvviewer::lookFrom(camera, entry.view);
        expectPoint(camera.target, 10.0, 20.0, 30.0);
        expectPoint(camera.eye, 10.0 + 100.0 * entry.eye[0], 20.0 + 100.0 * entry.eye[1], 30.0 + 100.0 * entry.eye[2]);
        expectPoint(camera.up, entry.up[0], entry.up[1], entry.up[2]);
    }
}

TEST(CameraMotion, FitShowsEveryCornerAndNoMoreThanNeeded)
{
    for (bool const orthographic : {false, true}) {
        for (double const aspect : {0.4, 1.0, 2.5}) {
            auto camera = frontCamera();
            camera.orthographic = orthographic;
            orvviewer::lookFrom(camera, StandardView::isometric);
            orvviewer::fit(camera, cornersOf(30.0F), aspect);
            double widest = 0.0;
            for (auto const& corner : cornersOf(30.0F)) {
                auto const [x, y] = projected(camera, corner);
                widest = std::max({widest, 2.0 * std::abs(y), 2.0 * std::abs(x) / aspect});
            }
            EXPECT_LE(widest, 1.0);
            EXPECT_GT(widest, 0.85);
            EXPECT_NEAR(camera.radius, 30.0 * std::sqrt(3.0), 1e-3);
        }
    }
}

TEST(CameraMotion, FitToNothingChangesNothing)
{
    auto camera = frontCamera();
    orvviewer::fit(camera, {}, 1.5);
    orvviewer::fit(camera, std::vector<Point>{Point(NAN, 0.0F, 0.0F)}, 1.5);
    EXPECT_EQ(camera, frontCamera());
}

TEST(CameraMotion, RecordsFromElsewhereAreSurvived)
{
    auto camera = frontCamera();
    camera.eye = camera.target;
    camera.up = Point(0.0F, 0.0F, 0.0F);
    orvviewer::orbit(camera, 0.3, 0.2);
    orvviewer::pan(camera, 0.3, 0.2);
    orvviewer::zoom(camera, 0.9, 0.1, 0.1);
    orvviewer::fit(camera, cornersOf(5.0F), 1.0);
    EXPECT_TRUE(std::isfinite(camera.eye[0]) && std::isfinite(camera.eye[1]) && std::isfinite(camera.eye[2]));
    EXPECT_GT(distance(camera.eye, camera.target), 1.0);
}
