#pragma once

#include "drawing/dxf/DxfDrawing.h"
#include "drawing/dxf/DxfEncoding.h"
#include "drawing/dxf/DxfTagReader.h"

#include <array>
#include <optional>
#include <string>

namespace firecheck {

/// Makes an entity of its tags, which it takes one by one in whatever order.
class DxfEntityBuilder {
public:
    /// The entity starts at the reader's current tag.
    DxfEntityBuilder(const DxfTagReader& reader, const DxfEncoding& encoding);

    void take(const DxfTag& tag);

    /// Refuses an entity that lacks what its kind needs.
    DxfEntity entity();

    /// For what follows a POLYLINE. Vertices that only shape a fitted curve are none of its own.
    bool isOwnVertex() const { return (m_flags & kFrameVertex) == 0; }
    DxfVertex vertex() const;
    /// For what follows an INSERT.
    DxfAttribute attribute() const;

private:
    static constexpr int kFrameVertex = 16;

    bool isOf(const char* type) const { return m_entity.type == type; }
    bool takeCommon(const DxfTag& tag);
    void takeExtended(const DxfTag& tag);
    void takeText(const DxfTag& tag);
    void takeVertex(const DxfTag& tag);
    void requireWholeVertex() const;
    void takeWidth(double width);
    void takeNumber(const DxfTag& tag);
    std::string text(const DxfTag& tag) const;
    double value(int code, double standIn) const;
    DxfPoint point(int code) const;
    void requireGroups(std::initializer_list<int> codes) const;
    DxfFacing facing() const;

    DxfPolyline lightPolyline();
    DxfPolyline polylineHead() const;
    DxfText shownEntityText() const;
    DxfInsert insert() const;

    const DxfTagReader& m_reader;
    const DxfEncoding& m_encoding;
    DxfEntity m_entity;
    bool m_isNeeded;           ///< whether more is read of it than its layer
    bool m_isInGroup = false;  ///< between the braces of an application
    bool m_isEmbedded = false; ///< in an object that some texts carry with them
    bool m_isOurData = false;
    int m_flags = 0;
    std::array<double, 80> m_numbers{};
    std::array<bool, 80> m_isGiven{};
    std::array<double, 3> m_normal{0.0, 0.0, 1.0};
    std::string m_longText; ///< bytes of the pieces before the last
    std::string m_text;     ///< bytes
    std::string m_name;     ///< of a block or an attribute
    std::vector<DxfVertex> m_vertices;
    int m_openVertex = 0;                ///< the line of the vertex that lacks its y so far; 0 for none
    std::optional<double> m_vertexWidth; ///< 0 where they differ
};

} // namespace firecheck
