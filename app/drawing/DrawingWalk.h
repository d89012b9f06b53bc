#pragma once

#include "drawing/PlaneMap.h"
#include "drawing/dxf/DxfDrawing.h"

#include <string>

namespace firecheck {

/// An entity as it lies in the plan: that of a block as often as the block is inserted.
struct PlacedEntity {
    const DxfEntity& entity;
    const PlaneMap& map;      ///< from the coordinates around the entity to those of the site
    const std::string& layer; ///< in a block, "0" stands for that of the insert
    bool isInBlock = false;
    // Of an insert: which cell of its array.
    int column = 0;
    int row = 0;
};

/// What becomes of an insert.
enum class InsertUse {
    TakenApart,   ///< what is in its block is visited
    Whole,        ///< it is done with
    WholeAndParts ///< what is in its block is visited, and leaveParts called then
};

/// What a walk through a drawing tells.
class DrawingVisitor {
public:
    virtual ~DrawingVisitor() = default;

    virtual InsertUse takeInsert(const PlacedEntity& insert) = 0;
    virtual void leaveParts() = 0;
    virtual void take(const PlacedEntity& entity) = 0;
    /// An entity that does not count, and why.
    virtual void passOver(const PlacedEntity& entity, const std::string& reason) = 0;
};

/// Visits everything in the plan of a drawing in its order. Throws InputError, "`fileName`:LINE: ...", for
/// blocks that hold themselves and for blocks within blocks that come to more than anybody draws.
void walkDrawing(const DxfDrawing& drawing, const std::string& fileName, const PlaneMap& map,
                 DrawingVisitor& visitor);

} // namespace firecheck
