#include "drawing/dxf/write_dxf.h"

#include "drawing/dxf/DxfTagWriter.h"
#include "drawing/dxf/colour_index.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <vector>

namespace firecheck {

namespace {

const char* const kTextStyle = "FIRECHECK";

class DxfFileWriter {
public:
    explicit DxfFileWriter(const DxfDrawing& drawing) : m_drawing(drawing) {
        m_layers = drawing.layers;
        m_layers.emplace("0", DxfLayer());
        for (const DxfEntity& entity : drawing.entities) {
            m_layers.emplace(entity.layer, DxfLayer());
            if (entity.handle != 0)
                m_taken.insert(entity.handle);
        }
        const std::uint64_t greatest = m_taken.empty() ? 0 : *m_taken.rbegin();
        m_next = greatest < kGreatestSeed ? std::max<std::uint64_t>(greatest, 0xFF) : 0;
        m_modelSpace = newHandle();
        m_paperSpace = newHandle();
    }

    std::string write() {
        writeEntities();
        const std::string entities = m_out.take();
        writeTables();
        const std::string tables = m_out.take();
        writeObjects();
        const std::string objects = m_out.take();
        writeHeader();
        return m_out.take() + tables + entities + objects;
    }

private:
    static constexpr std::uint64_t kGreatestSeed = std::numeric_limits<std::int64_t>::max() / 2;

    std::uint64_t newHandle() {
        do
            ++m_next;
        while (m_taken.count(m_next) != 0);
        return m_next;
    }

    void beginSection(const char* name) {
        m_out.tag(0, "SECTION");
        m_out.tag(2, name);
    }
    void endSection() { m_out.tag(0, "ENDSEC"); }

    void writeHeader() {
        beginSection("HEADER");
        m_out.tag(9, "$ACADVER");
        m_out.tag(1, "AC1021");
        m_out.tag(9, "$DWGCODEPAGE");
        m_out.tag(3, "ANSI_936");
        m_out.tag(9, "$INSUNITS");
        m_out.integer(70, m_drawing.units);
        m_out.tag(9, "$MEASUREMENT");
        m_out.integer(70, 1);
        m_out.tag(9, "$HANDSEED");
        m_out.handle(5, newHandle());
        endSection();
        beginSection("CLASSES");
        endSection();
    }

    void beginTable(const char* name, std::size_t count) {
        m_out.tag(0, "TABLE");
        m_out.tag(2, name);
        m_table = newHandle();
        m_out.handle(5, m_table);
        m_out.tag(330, "0");
        m_out.tag(100, "AcDbSymbolTable");
        m_out.integer(70, static_cast<long long>(count));
    }
    void endTable() { m_out.tag(0, "ENDTAB"); }

    void beginRecord(const char* table, const char* subclass, const std::string& name, int handleCode = 5,
                     std::uint64_t handle = 0) {
        m_out.tag(0, table);
        m_out.handle(handleCode, handle == 0 ? newHandle() : handle);
        m_out.handle(330, m_table);
        m_out.tag(100, "AcDbSymbolTableRecord");
        m_out.tag(100, subclass);
        m_out.text(2, name);
    }

    void writeTables() {
        beginSection("TABLES");
        writeViewPort();
        writeLineTypes();
        writeLayers();
        writeTextStyles();
        for (const char* const empty : {"VIEW", "UCS"}) {
            beginTable(empty, 0);
            endTable();
        }
        beginTable("APPID", 2);
        for (const std::string& name : {std::string("ACAD"), kDxfApplication}) {
            beginRecord("APPID", "AcDbRegAppTableRecord", name);
            m_out.integer(70, 0);
        }
        endTable();
        beginTable("DIMSTYLE", 1);
        m_out.tag(100, "AcDbDimStyleTable");
        beginRecord("DIMSTYLE", "AcDbDimStyleTableRecord", "Standard", 105);
        m_out.integer(70, 0);
        endTable();
        beginTable("BLOCK_RECORD", 2);
        beginRecord("BLOCK_RECORD", "AcDbBlockTableRecord", "*Model_Space", 5, m_modelSpace);
        beginRecord("BLOCK_RECORD", "AcDbBlockTableRecord", "*Paper_Space", 5, m_paperSpace);
        endTable();
        endSection();
        beginSection("BLOCKS");
        writeBlock("*Model_Space", m_modelSpace);
        writeBlock("*Paper_Space", m_paperSpace);
        endSection();
    }

    void writeViewPort() {
        beginTable("VPORT", 1);
        beginRecord("VPORT", "AcDbViewportTableRecord", "*Active");
        m_out.integer(70, 0);
        const DxfPoint middle{(m_low.x + m_high.x) * 0.5, (m_low.y + m_high.y) * 0.5};
        const double height = std::max({m_high.y - m_low.y, (m_high.x - m_low.x) * 0.6, 1.0}) * 1.1;
        const auto pair = [this](int code, double x, double y) {
            m_out.number(code, x);
            m_out.number(code + 10, y);
        };
        pair(10, 0.0, 0.0);
        pair(11, 1.0, 1.0);
        pair(12, m_isAny ? middle.x : 0.0, m_isAny ? middle.y : 0.0);
        m_out.point(16, 0.0, 0.0);
        m_out.number(36, 1.0);
        m_out.number(40, m_isAny ? height : 1.0);
        m_out.number(41, 1.6);
        endTable();
    }

    void writeLineTypes() {
        beginTable("LTYPE", 3);
        for (const char* const name : {"ByBlock", "ByLayer", "Continuous"}) {
            beginRecord("LTYPE", "AcDbLinetypeTableRecord", name);
            m_out.integer(70, 0);
            m_out.tag(3, "");
            m_out.integer(72, 65);
            m_out.integer(73, 0);
            m_out.number(40, 0.0);
        }
        endTable();
    }

    void writeLayers() {
        beginTable("LAYER", m_layers.size());
        for (const auto& [name, layer] : m_layers) {
            beginRecord("LAYER", "AcDbLayerTableRecord", name);
            m_out.integer(70, 0);
            m_out.integer(62, layer.colour < 0 ? 7 : nearestColourIndex(layer.colour));
            if (layer.colour >= 0)
                m_out.integer(420, layer.colour);
            m_out.tag(6, "Continuous");
        }
        endTable();
    }

    void writeTextStyles() {
        beginTable("STYLE", 2);
        for (const auto& [name, font] : {std::pair("Standard", "txt"), std::pair(kTextStyle, "simhei.ttf")}) {
            beginRecord("STYLE", "AcDbTextStyleTableRecord", name);
            m_out.integer(70, 0);
            m_out.number(40, 0.0);
            m_out.number(41, 1.0);
            m_out.number(50, 0.0);
            m_out.integer(71, 0);
            m_out.number(42, 2.5);
            m_out.tag(3, font);
            m_out.tag(4, "");
        }
        endTable();
    }

    void writeBlock(const char* name, std::uint64_t record) {
        const bool isPaper = record == m_paperSpace;
        for (const bool isStart : {true, false}) {
            m_out.tag(0, isStart ? "BLOCK" : "ENDBLK");
            m_out.handle(5, newHandle());
            m_out.handle(330, record);
            m_out.tag(100, "AcDbEntity");
            if (isPaper)
                m_out.integer(67, 1);
            m_out.tag(8, "0");
            m_out.tag(100, isStart ? "AcDbBlockBegin" : "AcDbBlockEnd");
            if (!isStart)
                break;
            m_out.tag(2, name);
            m_out.integer(70, 0);
            m_out.point(10, 0.0, 0.0);
            m_out.tag(3, name);
            m_out.tag(1, "");
        }
    }

    void beginEntity(const char* type, std::uint64_t handle, std::uint64_t owner, const DxfEntity& entity) {
        m_out.tag(0, type);
        m_out.handle(5, handle);
        m_out.handle(330, owner);
        m_out.tag(100, "AcDbEntity");
        m_out.text(8, entity.layer);
        if (entity.colour >= 0) {
            m_out.integer(62, nearestColourIndex(entity.colour));
            m_out.integer(420, entity.colour);
        }
    }

    void bound(const DxfPoint& p) {
        m_low = m_isAny ? DxfPoint{std::min(m_low.x, p.x), std::min(m_low.y, p.y)} : p;
        m_high = m_isAny ? DxfPoint{std::max(m_high.x, p.x), std::max(m_high.y, p.y)} : p;
        m_isAny = true;
    }

    void point(int code, const DxfPoint& p) {
        bound(p);
        m_out.point(code, p.x, p.y);
    }

    void writeEntities() {
        beginSection("ENTITIES");
        for (const DxfEntity& entity : m_drawing.entities) {
            m_entity = entity.handle != 0 ? entity.handle : newHandle();
            std::visit([&](const auto& shape) { writeShape(shape, entity); }, entity.shape);
        }
        endSection();
    }

    void writeExtendedData(const DxfEntity& entity) {
        if (entity.extendedData.empty())
            return;
        m_out.tag(1001, kDxfApplication);
        for (const std::string& string : entity.extendedData)
            m_out.text(1000, string);
    }

    void writeShape(const DxfLine& line, const DxfEntity& entity) {
        beginEntity("LINE", m_entity, m_modelSpace, entity);
        m_out.tag(100, "AcDbLine");
        point(10, line.start);
        point(11, line.end);
        writeExtendedData(entity);
    }

    void writeShape(const DxfArc& arc, const DxfEntity& entity) {
        beginEntity(arc.isCircle ? "CIRCLE" : "ARC", m_entity, m_modelSpace, entity);
        m_out.tag(100, "AcDbCircle");
        point(10, arc.centre);
        m_out.number(40, arc.radius);
        if (!arc.isCircle) {
            m_out.tag(100, "AcDbArc");
            m_out.number(50, arc.startAngle);
            m_out.number(51, arc.endAngle);
        }
        writeExtendedData(entity);
    }

    void writeShape(const DxfPointMark& mark, const DxfEntity& entity) {
        beginEntity("POINT", m_entity, m_modelSpace, entity);
        m_out.tag(100, "AcDbPoint");
        point(10, mark.at);
        writeExtendedData(entity);
    }

    /// The polyline of vertices: the lighter one is not in every version that others may save the drawing as.
    void writeShape(const DxfPolyline& polyline, const DxfEntity& entity) {
        beginEntity("POLYLINE", m_entity, m_modelSpace, entity);
        m_out.tag(100, "AcDb2dPolyline");
        m_out.integer(66, 1);
        m_out.point(10, 0.0, 0.0);
        m_out.integer(70, polyline.isClosed ? 1 : 0);
        m_out.number(40, polyline.width);
        m_out.number(41, polyline.width);
        writeExtendedData(entity);
        const std::uint64_t head = m_entity;
        for (const DxfVertex& vertex : polyline.vertices) {
            beginEntity("VERTEX", newHandle(), head, entity);
            m_out.tag(100, "AcDbVertex");
            m_out.tag(100, "AcDb2dVertex");
            point(10, vertex.at);
            if (polyline.width != 0.0) {
                m_out.number(40, polyline.width);
                m_out.number(41, polyline.width);
            }
            m_out.number(42, vertex.bulge);
            m_out.integer(70, 0);
        }
        beginEntity("SEQEND", newHandle(), head, entity);
    }

    void writeShape(const DxfText& text, const DxfEntity& entity) {
        beginEntity("TEXT", m_entity, m_modelSpace, entity);
        m_out.tag(100, "AcDbText");
        point(10, text.at);
        m_out.number(40, text.height);
        m_out.text(1, QString::fromStdString(text.text).replace("%%", "%%%%").toStdString());
        m_out.number(50, text.rotation);
        m_out.tag(7, kTextStyle);
        if (text.isCentred) {
            m_out.integer(72, 1);
            point(11, text.at);
        }
        m_out.tag(100, "AcDbText");
        if (text.isCentred)
            m_out.integer(73, 2);
        writeExtendedData(entity);
    }

    void writeShape(const DxfInsert&, const DxfEntity&) {}
    void writeShape(const DxfAttributeDefinition&, const DxfEntity&) {}
    void writeShape(const DxfOther&, const DxfEntity&) {}

    void writeObjects() {
        beginSection("OBJECTS");
        const std::uint64_t root = newHandle();
        const std::uint64_t groups = newHandle();
        writeDictionary(root, 0);
        m_out.tag(3, "ACAD_GROUP");
        m_out.handle(350, groups);
        writeDictionary(groups, root);
        endSection();
        m_out.tag(0, "EOF");
    }

    void writeDictionary(std::uint64_t handle, std::uint64_t owner) {
        m_out.tag(0, "DICTIONARY");
        m_out.handle(5, handle);
        m_out.handle(330, owner);
        m_out.tag(100, "AcDbDictionary");
        m_out.integer(281, 1);
    }

    const DxfDrawing& m_drawing;
    std::map<std::string, DxfLayer> m_layers;
    DxfTagWriter m_out;
    std::set<std::uint64_t> m_taken;
    std::uint64_t m_next = 0;
    std::uint64_t m_table = 0;
    std::uint64_t m_entity = 0;
    std::uint64_t m_modelSpace = 0;
    std::uint64_t m_paperSpace = 0;
    bool m_isAny = false;
    DxfPoint m_low;
    DxfPoint m_high;
};

} // namespace

std::string writeDxf(const DxfDrawing& drawing) {
    return DxfFileWriter(drawing).write();
}

std::string layerName(const std::string& name) {
    constexpr int longest = 120; // characters, each of which may take more when it is escaped
    QString result = QString::fromStdString(name).simplified().left(longest);
    for (QChar& c : result)
        if (c.unicode() < 32 || c.isSurrogate() || QStringLiteral("<>/\\\":;?*|=,`").contains(c))
            c = '_';
    return result.isEmpty() ? std::string("0") : result.toStdString();
}

} // namespace firecheck
