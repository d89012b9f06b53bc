#pragma once

#include "drawing/PlaneMap.h"
#include "drawing/dxf/DxfDrawing.h"
#include "geometry/CBox2d.h"
#include "geometry/PolyPt2d.h"

#include <optional>
#include <vector>

namespace firecheck {

/// What an entity of a drawing looks like in the plan of the site, in millimetres.
struct DrawnShape {
    enum class Kind {
        Outline, ///< closed, by its vertices
        Circle,
        Path,  ///< open, by its vertices
        Mark,  ///< a point
        Symbol ///< an inserted block
    };

    Kind kind = Kind::Mark;
    std::vector<hrx::PolyPt2d>
        vertices;             ///< of a symbol, those of its outline where that is no rectangle of the block
    hrx::CVec2<double> place; ///< a circle's centre, a mark, where a symbol is inserted
    double radius = 0.0;
    double width = 0.0; ///< of a polyline that has one

    // Of a symbol: the rectangle around it or around its outline, turned with it. Nothing is in an empty one.
    bool hasBox = false;
    hrx::CVec2<double> boxMiddle;
    double length = 0.0;
    double depth = 0.0;
    double angle = 0.0; ///< of its length, degrees
};

/// The shape of an entity that is no insert; nothing for one that has none in plan, and for an arc that `map`
/// makes an ellipse of.
std::optional<DrawnShape> drawnShape(const DxfEntity& entity, const PlaneMap& map);

/// From the coordinates of an entity to those of the plan.
PlaneMap ownPlane(const DxfEntity& entity);

/// From a block's coordinates to those in which it is inserted, for one cell of an array.
PlaneMap insertPlane(const DxfInsert& insert, const DxfBlock& block, int column, int row);

/// To a millionth of a millimetre, where arithmetic rounded.
double tidy(double value);
/// An angle in degrees above -180 and up to 180.
double tidyAngle(double degrees);

bool isRectangleOfPlane(const std::vector<hrx::PolyPt2d>& vertices);
hrx::CBox2d boxOf(const DrawnShape& shape);
/// Half the cross products of the corners: above 0 counter-clockwise. Arcs count by their chords.
double chordArea(const std::vector<hrx::PolyPt2d>& vertices);

} // namespace firecheck
