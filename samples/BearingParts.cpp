#include "samples/BearingParts.h"

#include "samples/Solids.h"

#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>

#include <cmath>

namespace sample
{

namespace
{

constexpr double grooveFit = 1.03;     // radius of the groove over that of the ball
constexpr double raceClearance = 0.55; // where a race ends, in ball radii from the balls' circle

double ballCircle(BearingData const& bearing)
{
    return (bearing.bore + bearing.outside) / 2;
}

TopoDS_Shape groove(BearingData const& bearing)
{
    gp_Ax2 const middle(gp_Pnt(0, 0, bearing.width / 2), gp::DZ());
    return BRepPrimAPI_MakeTorus(middle, ballCircle(bearing), bearing.ballRadius * grooveFit).Solid();
}

} // namespace

TopoDS_Shape makeOuterRace(BearingData const& bearing)
{
    double const inside = ballCircle(bearing) + raceClearance * bearing.ballRadius;
    return cut(ring(inside, bearing.outside, 0, bearing.width), {groove(bearing)});
}

TopoDS_Shape makeInnerRace(BearingData const& bearing)
{
    double const outside = ballCircle(bearing) - raceClearance * bearing.ballRadius;
    return cut(ring(bearing.bore, outside, 0, bearing.width), {groove(bearing)});
}

TopoDS_Shape makeBallCage(BearingData const& bearing)
{
    double const middle = bearing.width / 2;
    double const circle = ballCircle(bearing);
    std::vector<TopoDS_Shape> bodies{ring(circle - 0.6, circle + 0.6, middle - 2, middle + 2)};
    for (int ball = 0; ball < bearing.balls; ++ball) {
        double const angle = (ball + 0.5) * 360 * degree / bearing.balls;
        gp_Pnt const centre(circle * std::cos(angle), circle * std::sin(angle), middle);
        // The poles lie where the cage enters: what remains is a zone without a pole, which every STEP reader gets
        // right.
        gp_Ax2 const alongCage(centre, gp_Dir(-std::sin(angle), std::cos(angle), 0));
        bodies.push_back(BRepPrimAPI_MakeSphere(alongCage, bearing.ballRadius).Solid());
    }
    return fuse(bodies);
}

TopoDS_Shape makeSeal(double shaft, double seat, double width)
{
    return turned({{shaft, 1},
                   {shaft + 2, 0},
                   {seat, 0},
                   {seat, width},
                   {seat - 2, width},
                   {seat - 2, 2},
                   {shaft + 2, 2},
                   {shaft + 2, width - 2},
                   {shaft + 1, width - 2},
                   {shaft, 2}});
}

} // namespace sample
