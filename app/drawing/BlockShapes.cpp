#include "drawing/BlockShapes.h"

#include "drawing/block_nesting.h"
#include "drawing/dxf/refuse_drawing.h"

#include <cmath>

namespace firecheck {

namespace {

bool isEmpty(const hrx::CBox2d& box) {
    return !(box.low.x <= box.high.x);
}

void addPlaced(const hrx::CBox2d& inner, const PlaneMap& map, hrx::CBox2d& box) {
    if (isEmpty(inner))
        return;
    for (const double x : {inner.low.x, inner.high.x})
        for (const double y : {inner.low.y, inner.high.y})
            box.add(map({x, y}));
}

double areaOf(const DrawnShape& shape) {
    return shape.kind == DrawnShape::Kind::Circle ? std::acos(-1.0) * shape.radius * shape.radius
                                                  : std::abs(chordArea(shape.vertices));
}

bool isAlongAxes(const DrawnShape& shape) {
    return shape.kind == DrawnShape::Kind::Outline && isRectangleOfPlane(shape.vertices) &&
           (std::abs(shape.vertices[0].x - shape.vertices[1].x) < 1e-6 ||
            std::abs(shape.vertices[0].y - shape.vertices[1].y) < 1e-6);
}

/// The outline of a block, placed; nothing for an arc that `map` makes an ellipse of.
std::optional<std::vector<hrx::PolyPt2d>> placedVertices(const DrawnShape& outline, const PlaneMap& map) {
    std::vector<hrx::PolyPt2d> vertices = outline.vertices;
    if (outline.kind == DrawnShape::Kind::Circle)
        vertices = {{outline.place.x - outline.radius, outline.place.y, 1.0},
                    {outline.place.x + outline.radius, outline.place.y, 1.0}};
    for (hrx::PolyPt2d& vertex : vertices) {
        if (vertex.bulge != 0.0 && !map.keepsCircles())
            return std::nullopt;
        const hrx::CVec2<double> at = map({vertex.x, vertex.y});
        vertex = {tidy(at.x), tidy(at.y), map.isMirrored() ? -vertex.bulge : vertex.bulge};
    }
    return vertices;
}

} // namespace

std::optional<DrawnShape> BlockShapes::symbol(const PlacedEntity& placed) {
    const DxfEntity& entity = placed.entity;
    const auto& insert = std::get<DxfInsert>(entity.shape);
    const std::string key = dxfNameKey(insert.block);
    const auto block = m_drawing.blocks.find(key);
    if (block == m_drawing.blocks.end() || entity.facing == DxfFacing::Tilted)
        return std::nullopt;
    const PlaneMap whole = placed.map.after(ownPlane(entity))
                               .after(insertPlane(insert, block->second, placed.column, placed.row));
    const Measured& shape = measured(key, block->second, {!m_layers.isHidden(placed.layer), 0});
    DrawnShape result;
    result.kind = DrawnShape::Kind::Symbol;
    const hrx::CVec2<double> place = whole({block->second.base.x, block->second.base.y});
    result.place = {tidy(place.x), tidy(place.y)};
    // A house that is mirrored keeps its front.
    result.angle = tidyAngle(std::atan2(whole.yAxis.y, whole.yAxis.x) * 180.0 / std::acos(-1.0) - 90.0);
    if (isEmpty(shape.box))
        return result;
    if (!whole.keepsRightAngles())
        return std::nullopt;
    const hrx::CBox2d box = shape.hasOutline ? boxOf(shape.outline) : shape.box;
    const hrx::CVec2<double> middle = whole((box.low + box.high) * 0.5);
    result.hasBox = true;
    result.boxMiddle = {tidy(middle.x), tidy(middle.y)};
    result.length = tidy((box.high.x - box.low.x) * hrx::length(whole.xAxis));
    result.depth = tidy((box.high.y - box.low.y) * hrx::length(whole.yAxis));
    if (shape.hasOutline && !shape.isRectangle) {
        const auto vertices = placedVertices(shape.outline, whole);
        if (!vertices)
            return std::nullopt;
        result.vertices = *vertices;
        result.radius = shape.outline.kind == DrawnShape::Kind::Circle ? 0.5 * result.length : 0.0;
    }
    return result;
}

const BlockShapes::Measured& BlockShapes::measured(const std::string& key, const DxfBlock& block,
                                                   const View& view) {
    const auto known = m_measured.find({key, view.isOuterLayerSeen});
    if (known != m_measured.end())
        return known->second;
    if (view.depth > kDeepestBlock)
        refuseDrawing(m_fileName, block.line, tooDeepBlock());
    Measured result;
    for (const DxfEntity& entity : block.entities)
        addEntity(entity, result, view);
    return m_measured.emplace(std::pair(key, view.isOuterLayerSeen), std::move(result)).first->second;
}

bool BlockShapes::isSeen(const std::string& layer, const View& view) {
    return layer == kBlockLayer ? view.isOuterLayerSeen : !m_layers.isHidden(layer);
}

bool BlockShapes::counts(const DxfEntity& entity, const View& view) {
    if (entity.isInvisible || entity.isInPaperSpace || entity.facing == DxfFacing::Tilted)
        return false;
    // What is in a block that is inserted on a layer which is off has layers of its own.
    const bool isInsert = std::holds_alternative<DxfInsert>(entity.shape);
    const bool isShown = isInsert ? entity.layer == kBlockLayer || !m_layers.isFrozen(entity.layer)
                                  : isSeen(entity.layer, view);
    return isShown && !m_isIgnored(entity);
}

void BlockShapes::addEntity(const DxfEntity& entity, Measured& measured, const View& view) {
    if (!counts(entity, view))
        return;
    if (const auto* insert = std::get_if<DxfInsert>(&entity.shape)) {
        addInsert(entity, *insert, measured, view);
        return;
    }
    std::optional<DrawnShape> shape = drawnShape(entity, {});
    if (!shape)
        return;
    if (shape->kind != DrawnShape::Kind::Mark)
        measured.box.add(boxOf(*shape));
    const bool isClosed = shape->kind == DrawnShape::Kind::Outline || shape->kind == DrawnShape::Kind::Circle;
    const double area = isClosed ? areaOf(*shape) : 0.0;
    if (area <= measured.area)
        return;
    measured.area = area;
    measured.hasOutline = true;
    measured.isRectangle = isAlongAxes(*shape);
    measured.outline = std::move(*shape);
}

void BlockShapes::addInsert(const DxfEntity& entity, const DxfInsert& insert, Measured& measured,
                            const View& view) {
    const std::string key = dxfNameKey(insert.block);
    const auto block = m_drawing.blocks.find(key);
    if (block == m_drawing.blocks.end())
        return;
    const Measured& inner = this->measured(key, block->second, {isSeen(entity.layer, view), view.depth + 1});
    // The outermost cells of an array bound the others.
    for (const int column : {0, insert.columns - 1})
        for (const int row : {0, insert.rows - 1})
            addPlaced(inner.box, ownPlane(entity).after(insertPlane(insert, block->second, column, row)),
                      measured.box);
    const PlaneMap map = ownPlane(entity).after(insertPlane(insert, block->second, 0, 0));
    const double area = inner.area * std::abs(hrx::cross(map.xAxis, map.yAxis));
    const auto vertices = inner.hasOutline ? placedVertices(inner.outline, map) : std::nullopt;
    if (!vertices || area <= measured.area)
        return;
    measured.area = area;
    measured.hasOutline = true;
    measured.outline = DrawnShape();
    measured.outline.kind = DrawnShape::Kind::Outline;
    measured.outline.vertices = *vertices;
    measured.isRectangle = isAlongAxes(measured.outline);
}

} // namespace firecheck
