#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace firecheck {

// A DXF drawing as far as sites are read from it and written to it. Lengths are in the drawing's unit, angles
// in degrees, texts in UTF-8. Coordinates are those of the file: an entity's own system (OCS) where its kind
// has one.

struct DxfPoint {
    double x = 0.0;
    double y = 0.0;
};

struct DxfVertex {
    DxfPoint at;
    double bulge = 0.0; ///< of the edge that starts here: tan(sweep / 4), positive counter-clockwise
};

struct DxfLine {
    DxfPoint start;
    DxfPoint end;
};

/// A circle, or the part of it that runs counter-clockwise from one angle to another.
struct DxfArc {
    DxfPoint centre;
    double radius = 0.0;
    bool isCircle = false;
    double startAngle = 0.0; ///< may lie beyond 360
    double endAngle = 0.0;
};

struct DxfPolyline {
    std::vector<DxfVertex> vertices;
    bool isClosed = false;
    double width = 0.0; ///< 0 unless the whole polyline has one
};

struct DxfPointMark {
    DxfPoint at;
};

/// TEXT or MTEXT, without its formatting codes.
struct DxfText {
    DxfPoint at;
    double height = 0.0;
    double rotation = 0.0;
    std::string text;
    /// How the text lies about the point: TEXT starts there unless centred.
    bool isCentred = false;
};

struct DxfAttribute {
    std::string tag;
    std::string value;
    int line = 0;
};

struct DxfInsert {
    std::string block;
    DxfPoint at;
    double scaleX = 1.0;
    double scaleY = 1.0;
    double rotation = 0.0;
    int columns = 1;
    int rows = 1;
    double columnSpacing = 0.0;
    double rowSpacing = 0.0;
    std::vector<DxfAttribute> attributes;
};

/// The definition of an attribute within a block; one that is constant is an attribute of every insert.
struct DxfAttributeDefinition {
    DxfAttribute attribute;
    bool isConstant = false;
};

/// An entity of a kind that nothing is read from.
struct DxfOther {};

/// Which way an entity's own coordinate system looks at the plan.
enum class DxfFacing { Up, Down, Tilted };

struct DxfEntity {
    std::string type;         ///< as the file has it: "LWPOLYLINE"
    int line = 0;             ///< where it starts in the file; 0 unless read
    std::uint64_t handle = 0; ///< 0 for none
    std::string layer = "0";
    DxfFacing facing = DxfFacing::Up;
    bool isInPaperSpace = false;
    bool isInvisible = false;
    int colour = -1; ///< as 0xRRGGBB; -1 for that of the layer
    /// The strings of its extended data under kDxfApplication, in their order.
    std::vector<std::string> extendedData;
    std::variant<DxfOther, DxfLine, DxfArc, DxfPolyline, DxfPointMark, DxfText, DxfInsert,
                 DxfAttributeDefinition>
        shape;
};

struct DxfBlock {
    int line = 0;
    DxfPoint base;
    bool isExternal = false; ///< stands for another drawing
    std::vector<DxfEntity> entities;
};

struct DxfLayer {
    bool isOff = false;    ///< hides its entities
    bool isFrozen = false; ///< hides its entities, and all of a block that is inserted on it
    int colour = -1;       ///< as 0xRRGGBB
};

struct DxfDrawing {
    int units = 0; ///< $INSUNITS; 0 for none
    std::map<std::string, DxfLayer> layers;
    std::map<std::string, DxfBlock> blocks; ///< by dxfNameKey
    std::vector<DxfEntity> entities;
    std::uint64_t greatestHandle = 0;
    /// Why the texts may have been read wrongly; empty when there is no doubt.
    std::string encodingDoubt;
};

/// Under which name of an application extended data is ours.
inline const std::string kDxfApplication = "FIRECHECK";

/// The layer that stands in a block for the one of its insert.
inline const std::string kBlockLayer = "0";

/// Names of layers and blocks are the same whatever their letter case.
std::string dxfNameKey(const std::string& name);

} // namespace firecheck
