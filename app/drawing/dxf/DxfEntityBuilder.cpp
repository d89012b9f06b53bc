#include "drawing/dxf/DxfEntityBuilder.h"

#include "drawing/dxf/dxf_text.h"
#include "text/words.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace firecheck {

namespace {

constexpr std::array<std::string_view, 13> kNeeded = {"LINE",   "ARC",    "CIRCLE", "LWPOLYLINE", "POLYLINE",
                                                      "VERTEX", "INSERT", "ATTRIB", "ATTDEF",     "POINT",
                                                      "TEXT",   "MTEXT",  "SEQEND"};

// Flags of a POLYLINE.
constexpr int kClosed = 1;
constexpr int kInSpace = 8;
constexpr int kMesh = 16;
constexpr int kPolyface = 64;
constexpr int kConstantAttribute = 2;

constexpr int kMostCells = 1000000; // of an array

} // namespace

DxfEntityBuilder::DxfEntityBuilder(const DxfTagReader& reader, const DxfEncoding& encoding)
    : m_reader(reader), m_encoding(encoding) {
    m_entity.type = DxfTagReader::trimmed(reader.current());
    m_entity.line = reader.current().line;
    m_isNeeded = std::find(kNeeded.begin(), kNeeded.end(), m_entity.type) != kNeeded.end();
}

std::string DxfEntityBuilder::text(const DxfTag& tag) const {
    return withoutEscapes(m_encoding.decoded(tag.value));
}

void DxfEntityBuilder::take(const DxfTag& tag) {
    if (tag.code >= 1000) {
        takeExtended(tag);
        return;
    }
    if (tag.code == 102)
        m_isInGroup = !tag.value.empty() && DxfTagReader::trimmed(tag).substr(0, 1) == "{";
    if (tag.code == 101)
        m_isEmbedded = true;
    if (m_isInGroup || m_isEmbedded || takeCommon(tag) || !m_isNeeded)
        return;
    if (tag.code >= 1 && tag.code <= 3)
        takeText(tag);
    else if (isOf("LWPOLYLINE") && (tag.code == 10 || tag.code == 20 || tag.code == 42))
        takeVertex(tag);
    else if (isOf("LWPOLYLINE") && (tag.code == 40 || tag.code == 41))
        takeWidth(m_reader.number(tag));
    else
        takeNumber(tag);
}

void DxfEntityBuilder::takeWidth(double width) {
    m_vertexWidth = m_vertexWidth.value_or(width) == width ? width : 0.0;
}

bool DxfEntityBuilder::takeCommon(const DxfTag& tag) {
    switch (tag.code) {
    case 5: {
        const std::string_view digits = DxfTagReader::trimmed(tag);
        // Handles are hexadecimal; what is none counts as missing.
        const auto result =
            std::from_chars(digits.data(), digits.data() + digits.size(), m_entity.handle, 16);
        if (result.ec != std::errc() || result.ptr != digits.data() + digits.size())
            m_entity.handle = 0;
        return true;
    }
    case 8:
        m_entity.layer = text(tag);
        return true;
    case 60:
        m_entity.isInvisible = m_reader.integer(tag) != 0;
        return true;
    case 67:
        m_entity.isInPaperSpace = m_reader.integer(tag) != 0;
        return true;
    default:
        return false;
    }
}

void DxfEntityBuilder::takeExtended(const DxfTag& tag) {
    if (tag.code == 1001)
        m_isOurData = dxfNameKey(text(tag)) == kDxfApplication;
    else if (tag.code == 1000 && m_isOurData)
        m_entity.extendedData.push_back(text(tag));
}

void DxfEntityBuilder::takeText(const DxfTag& tag) {
    if (tag.code == 2)
        m_name = text(tag);
    else if (tag.code == 1)
        m_text = tag.value;
    else if (isOf("MTEXT"))
        m_longText += tag.value; // whole pieces, since a character may lie across two
}

void DxfEntityBuilder::takeVertex(const DxfTag& tag) {
    const double number = m_reader.number(tag);
    if (tag.code == 10) {
        requireWholeVertex();
        m_vertices.push_back({{number, 0.0}, 0.0});
        m_openVertex = tag.line;
    } else if (m_vertices.empty())
        m_reader.fail(tag.line, filled(Words::tr("expected group 10 of a vertex before group %1"), tag.code));
    else if (tag.code == 20) {
        m_vertices.back().at.y = number;
        m_openVertex = 0;
    } else
        m_vertices.back().bulge = number;
}

void DxfEntityBuilder::requireWholeVertex() const {
    if (m_openVertex != 0)
        m_reader.fail(m_openVertex, filled(Words::tr("%1: expected group %2"), m_entity.type, 20));
}

void DxfEntityBuilder::takeNumber(const DxfTag& tag) {
    const bool isNormal = tag.code == 210 || tag.code == 220 || tag.code == 230;
    const bool isKept = tag.code >= 10 && tag.code < 80;
    if (isNormal)
        m_normal[std::size_t(tag.code - 210) / 10] = m_reader.number(tag);
    else if (isKept) {
        m_numbers[std::size_t(tag.code)] = m_reader.number(tag);
        m_isGiven[std::size_t(tag.code)] = true;
    }
    const bool isRadius = tag.code == 40 && (isOf("ARC") || isOf("CIRCLE"));
    if (isRadius && m_numbers[40] < 0.0)
        m_reader.fail(tag.line, filled(Words::tr("%1: expected a radius of at least 0"), m_entity.type));
    if (tag.code == 70)
        m_flags = m_reader.integer(tag);
}

double DxfEntityBuilder::value(int code, double standIn) const {
    return m_isGiven[std::size_t(code)] ? m_numbers[std::size_t(code)] : standIn;
}

DxfPoint DxfEntityBuilder::point(int code) const {
    return {value(code, 0.0), value(code + 10, 0.0)};
}

void DxfEntityBuilder::requireGroups(std::initializer_list<int> codes) const {
    for (const int code : codes)
        if (!m_isGiven[std::size_t(code)])
            m_reader.fail(m_entity.line, filled(Words::tr("%1: expected group %2"), m_entity.type, code));
}

DxfFacing DxfEntityBuilder::facing() const {
    const double length = std::hypot(m_normal[0], m_normal[1], m_normal[2]);
    const double slope = std::hypot(m_normal[0], m_normal[1]);
    if (!(slope <= 1e-9 * length) || length == 0.0)
        return length == 0.0 ? DxfFacing::Up : DxfFacing::Tilted;
    return m_normal[2] > 0.0 ? DxfFacing::Up : DxfFacing::Down;
}

DxfPolyline DxfEntityBuilder::lightPolyline() {
    requireWholeVertex();
    return {std::move(m_vertices), (m_flags & kClosed) != 0, value(43, m_vertexWidth.value_or(0.0))};
}

DxfPolyline DxfEntityBuilder::polylineHead() const {
    const double width = value(40, 0.0);
    return {{}, (m_flags & kClosed) != 0, width == value(41, 0.0) ? width : 0.0};
}

DxfText DxfEntityBuilder::shownEntityText() const {
    DxfText result;
    const bool isAligned = isOf("TEXT") && (value(72, 0.0) != 0.0 || value(73, 0.0) != 0.0) && m_isGiven[11];
    result.at = point(isAligned ? 11 : 10);
    result.height = value(40, 0.0);
    result.rotation = value(50, 0.0);
    const std::string raw = withoutEscapes(m_encoding.decoded(m_longText + m_text));
    result.text = isOf("MTEXT") ? shownParagraphs(raw) : shownText(raw);
    return result;
}

DxfInsert DxfEntityBuilder::insert() const {
    DxfInsert result;
    result.block = m_name;
    result.at = point(10);
    result.scaleX = value(41, 1.0);
    result.scaleY = value(42, 1.0);
    result.rotation = value(50, 0.0);
    const double columns = std::max(1.0, value(70, 1.0));
    const double rows = std::max(1.0, value(71, 1.0));
    if (columns * rows > kMostCells)
        m_reader.fail(m_entity.line,
                      filled(Words::tr("INSERT: expected an array of at most %1 cells"), kMostCells));
    result.columns = static_cast<int>(columns);
    result.rows = static_cast<int>(rows);
    result.columnSpacing = value(44, 0.0);
    result.rowSpacing = value(45, 0.0);
    return result;
}

DxfVertex DxfEntityBuilder::vertex() const {
    requireGroups({10, 20});
    return {point(10), value(42, 0.0)};
}

DxfAttribute DxfEntityBuilder::attribute() const {
    return {m_name, shownText(withoutEscapes(m_encoding.decoded(m_text))), m_entity.line};
}

DxfEntity DxfEntityBuilder::entity() {
    m_entity.facing = facing();
    if (isOf("LINE")) {
        requireGroups({10, 20, 11, 21});
        m_entity.shape = DxfLine{point(10), point(11)};
    } else if (isOf("CIRCLE") || isOf("ARC")) {
        requireGroups({10, 20, 40});
        if (isOf("ARC"))
            requireGroups({50, 51});
        m_entity.shape = DxfArc{point(10), value(40, 0.0), isOf("CIRCLE"), value(50, 0.0), value(51, 0.0)};
    } else if (isOf("LWPOLYLINE"))
        m_entity.shape = lightPolyline();
    else if (isOf("POLYLINE") && (m_flags & (kMesh | kPolyface)) == 0)
        m_entity.shape = polylineHead();
    else if (isOf("POINT")) {
        requireGroups({10, 20});
        m_entity.shape = DxfPointMark{point(10)};
    } else if (isOf("TEXT") || isOf("MTEXT"))
        m_entity.shape = shownEntityText();
    else if (isOf("INSERT")) {
        requireGroups({10, 20});
        m_entity.shape = insert();
    } else if (isOf("ATTDEF"))
        m_entity.shape = DxfAttributeDefinition{attribute(), (m_flags & kConstantAttribute) != 0};
    // These have the coordinates of the drawing, whatever way they look.
    const bool isInSpace =
        isOf("LINE") || isOf("POINT") || isOf("MTEXT") || (isOf("POLYLINE") && (m_flags & kInSpace) != 0);
    if (isInSpace)
        m_entity.facing = DxfFacing::Up;
    return std::move(m_entity);
}

} // namespace firecheck
