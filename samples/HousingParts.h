#pragma once

#include <TopoDS_Shape.hxx>

namespace sample
{

/// The two halves of the housing, cut open, with bolt holes; in the gearbox's own z.
TopoDS_Shape makeInputHousing();
TopoDS_Shape makeOutputHousing();

/// M8 hexagon bolt, 20 mm long; z = 0 under the head, the head below.
TopoDS_Shape makeFlangeBolt();

} // namespace sample
