#include "host/orvgl/Camera.h"
#include "host/orvgl/CameraHelper.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <numbers>

using orvgl::Camera;
using orvgl::CameraHelper;
using Point = CameraHelper::Point;

namespace
{

class CameraTest : public testing::Test
{
protected:
    void lookFrom(Point const& eye, Point const& target, Point const& up)
    {
        CameraHelper::lookAt(eye, target, up, false, {}, camera);
    }
    double distance() const
    {
        return std::hypot(camera->eye[0] - camera->target[0], camera->eye[1] - camera->target[1],
                          camera->eye[2] - camera->target[2]);
    }

    std::shared_ptr<Camera> camera = std::make_shared<Camera>();
};

TEST_F(CameraTest, FitsTheSphereWithoutTurning)
{
    lookFrom({10, 0, 0}, {0, 0, 0}, {0, 0, 1});
    CameraHelper::init({1, 2, 3}, 5.0F, camera);
    EXPECT_EQ(camera->centre, Point(1, 2, 3));
    EXPECT_FLOAT_EQ(camera->radius, 5.0F);
    EXPECT_EQ(camera->target, Point(1, 2, 3));
    EXPECT_EQ(camera->up, Point(0, 0, 1));
    EXPECT_FLOAT_EQ(camera->eye[1], 2.0F);
    EXPECT_FLOAT_EQ(camera->eye[2], 3.0F);
    // The picture is at least as high as the sphere, in both projections.
    double const height = 2.0 * distance() * std::tan(camera->fieldOfView / 2.0 * std::numbers::pi / 180.0);
    EXPECT_GE(height, 10.0);
    EXPECT_LT(height, 11.0);
    double const halfAngle = std::asin(5.0 / distance());
    EXPECT_NEAR(halfAngle * 180.0 / std::numbers::pi, camera->fieldOfView / 2.0, 1e-3);
}

TEST_F(CameraTest, ASphereWithoutSizeCountsAsOne)
{
    for (float const radius : {0.0F, -2.0F, std::numeric_limits<float>::quiet_NaN()}) {
        CameraHelper::init({}, radius, camera);
        EXPECT_FLOAT_EQ(camera->radius, 1.0F);
        EXPECT_TRUE(std::isfinite(camera->eye[2]));
    }
}

TEST_F(CameraTest, AnEyeInItsTargetIsMovedBack)
{
    lookFrom({3, 3, 3}, {3, 3, 3}, {0, 1, 0});
    CameraHelper::init({}, 1.0F, camera);
    EXPECT_GT(distance(), 1.0);
}

TEST_F(CameraTest, LookingSetsExactlyWhatIsGiven)
{
    CameraHelper::init({0, 0, 0}, 5.0F, camera);
    CameraHelper::lookAt({0.1F, -7.25F, 1e6F}, {1, 2, 3}, {0, 0, 17}, false, {9, 9, 9}, camera);
    EXPECT_EQ(camera->eye, Point(0.1F, -7.25F, 1e6F));
    EXPECT_EQ(camera->target, Point(1, 2, 3));
    EXPECT_EQ(camera->up, Point(0, 0, 17));
    EXPECT_EQ(camera->centre, Point(0, 0, 0)); // the depth range of init stays
    EXPECT_FLOAT_EQ(camera->radius, 5.0F);
}

TEST_F(CameraTest, TheDepthRangeIsWidenedWhenAsked)
{
    CameraHelper::init({0, 0, 0}, 5.0F, camera);
    CameraHelper::lookAt({30, 40, 0}, {0, 0, 0}, {0, 0, 1}, true, {0, 0, 0}, camera);
    EXPECT_FLOAT_EQ(camera->radius, 50.0F);
    CameraHelper::lookAt({1, 0, 0}, {0, 0, 0}, {0, 0, 1}, true, {0, 0, 0}, camera);
    EXPECT_FLOAT_EQ(camera->radius, 50.0F);
}

TEST_F(CameraTest, ReadsBackWhatWasSet)
{
    lookFrom({0, -10, 0}, {0, 0, 0}, {0, 5, 5});
    Point eye, target, right, up;
    CameraHelper::getEyeTargetUp(camera, eye, target, right, up, false);
    EXPECT_EQ(eye, Point(0, -10, 0));
    EXPECT_EQ(target, Point(0, 0, 0));
    EXPECT_EQ(up, Point(0, 5, 5));
    EXPECT_EQ(right, Point(1, 0, 0));
    CameraHelper::getEyeTargetUp(camera, eye, target, right, up, true);
    EXPECT_EQ(up, Point(0, 0, 1));
}

TEST_F(CameraTest, AnUpAlongTheViewStillGivesARightHandSide)
{
    lookFrom({0, 0, 10}, {0, 0, 0}, {0, 0, 1});
    Point eye, target, right, up;
    CameraHelper::getEyeTargetUp(camera, eye, target, right, up, true);
    EXPECT_NEAR(std::hypot(right[0], right[1], right[2]), 1.0, 1e-6);
    EXPECT_NEAR(std::hypot(up[0], up[1], up[2]), 1.0, 1e-6);
    EXPECT_NEAR(right[2], 0.0, 1e-6);
}

TEST_F(CameraTest, WithoutACameraNothingHappens)
{
    std::shared_ptr<Camera> none;
    CameraHelper::init({}, 1.0F, none);
    CameraHelper::lookAt({}, {}, {}, true, {}, none);
    Point eye(1, 2, 3), target, right, up;
    CameraHelper::getEyeTargetUp(none, eye, target, right, up, true);
    EXPECT_EQ(eye, Point(1, 2, 3));
}

} // namespace
