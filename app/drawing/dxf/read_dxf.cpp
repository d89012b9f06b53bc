#include "drawing/dxf/read_dxf.h"

#include "drawing/dxf/DxfEncoding.h"
#include "drawing/dxf/DxfEntityBuilder.h"
#include "drawing/dxf/DxfTagReader.h"
#include "drawing/dxf/dxf_text.h"
#include "drawing/dxf/refuse_drawing.h"
#include "text/shortened.h"
#include "text/words.h"

#include <QString>

#include <algorithm>

namespace firecheck {

namespace {

constexpr std::size_t kMostEntities = 2000000;

/// What the header says, which stands anywhere in it and is needed before the first text.
struct Header {
    std::string version;
    std::string codePage;
    int units = 0;
};

class DxfFileReader {
public:
    DxfFileReader(const std::string& text, const std::string& fileName, const Header& header,
                  DxfEncoding encoding)
        : m_reader(text, fileName), m_encoding(std::move(encoding)) {
        m_drawing.units = header.units;
        m_drawing.encodingDoubt = m_encoding.doubt();
    }

    DxfDrawing read() {
        while (!m_reader.isAt(0, "EOF")) {
            if (!m_reader.isAt(0, "SECTION"))
                m_reader.fail(
                    m_reader.current().line,
                    filled(Words::tr("expected a SECTION of a DXF drawing, found \"%1\""), found()));
            m_reader.advance();
            readSection();
        }
        return std::move(m_drawing);
    }

private:
    std::string found() const {
        return shortened(std::string(DxfTagReader::trimmed(m_reader.current()).substr(0, 200)));
    }

    void readSection() {
        if (m_reader.current().code != 2)
            m_reader.fail(m_reader.current().line,
                          filled(Words::tr("expected the name of the section in group 2")));
        const std::string name(DxfTagReader::trimmed(m_reader.current()));
        m_reader.advance();
        if (name == "TABLES")
            readTables();
        else if (name == "BLOCKS")
            readBlocks();
        else if (name == "ENTITIES")
            readEntities(m_drawing.entities);
        while (!m_reader.isAt(0, "ENDSEC")) {
            if (m_reader.isAt(0, "EOF"))
                m_reader.fail(m_reader.current().line,
                              filled(Words::tr("expected ENDSEC at the end of section %1"), shortened(name)));
            m_reader.advance();
        }
        m_reader.advance();
    }

    bool isAtEndOfSection() const { return m_reader.isAt(0, "ENDSEC") || m_reader.isAt(0, "EOF"); }

    /// Calls `take` for each tag of the entity at which the reader stands.
    template <class Take> void everyTag(Take take) {
        for (m_reader.advance(); !m_reader.isAtEntity(); m_reader.advance())
            take(m_reader.current());
    }

    void readTables() {
        while (!isAtEndOfSection()) {
            if (m_reader.isAt(0, "LAYER"))
                readLayer();
            else
                m_reader.advance();
        }
    }

    void readLayer() {
        constexpr int frozen = 1;
        std::string name;
        DxfLayer layer;
        everyTag([&](const DxfTag& tag) {
            if (tag.code == 2)
                name = text(tag);
            else if (tag.code == 70)
                layer.isFrozen = (m_reader.integer(tag) & frozen) != 0;
            else if (tag.code == 62) // a colour below 0 tells that the layer is off
                layer.isOff = m_reader.integer(tag) < 0;
        });
        m_drawing.layers[dxfNameKey(name)] = layer;
    }

    void readBlocks() {
        while (!isAtEndOfSection()) {
            if (m_reader.isAt(0, "BLOCK"))
                readBlock();
            else
                m_reader.advance();
        }
    }

    void readBlock() {
        constexpr int external = 4;
        countEntity();
        DxfBlock block;
        block.line = m_reader.current().line;
        std::string name;
        everyTag([&](const DxfTag& tag) {
            if (tag.code == 2)
                name = text(tag);
            else if (tag.code == 10)
                block.base.x = m_reader.number(tag);
            else if (tag.code == 20)
                block.base.y = m_reader.number(tag);
            else if (tag.code == 70)
                block.isExternal = (m_reader.integer(tag) & external) != 0;
        });
        readEntities(block.entities);
        m_drawing.blocks[dxfNameKey(name)] = std::move(block);
    }

    void readEntities(std::vector<DxfEntity>& entities) {
        while (!isAtEndOfSection() && !m_reader.isAt(0, "ENDBLK")) {
            if (!m_reader.isAtEntity()) {
                m_reader.advance();
                continue;
            }
            countEntity();
            entities.push_back(readEntity());
        }
    }

    void countEntity() {
        if (++m_count > kMostEntities)
            m_reader.fail(m_reader.current().line,
                          filled(Words::tr("expected a drawing of at most %1 entities"), kMostEntities));
    }

    DxfEntity readEntity() {
        DxfEntityBuilder builder = takeTags();
        DxfEntity entity = builder.entity();
        m_drawing.greatestHandle = std::max(m_drawing.greatestHandle, entity.handle);
        // A polyline of any kind is followed by its vertices.
        if (entity.type == "POLYLINE")
            readVertices(std::get_if<DxfPolyline>(&entity.shape));
        else if (auto* insert = std::get_if<DxfInsert>(&entity.shape))
            readAttributes(*insert);
        return entity;
    }

    DxfEntityBuilder takeTags() {
        DxfEntityBuilder builder(m_reader, m_encoding);
        everyTag([&builder](const DxfTag& tag) { builder.take(tag); });
        return builder;
    }

    void readVertices(DxfPolyline* polyline) {
        while (m_reader.isAt(0, "VERTEX")) {
            const DxfEntityBuilder builder = takeTags();
            if (polyline && builder.isOwnVertex())
                polyline->vertices.push_back(builder.vertex());
        }
        passSequenceEnd();
    }

    void readAttributes(DxfInsert& insert) {
        bool isAny = false;
        while (m_reader.isAt(0, "ATTRIB")) {
            countEntity();
            insert.attributes.push_back(takeTags().attribute());
            isAny = true;
        }
        if (isAny)
            passSequenceEnd();
    }

    void passSequenceEnd() {
        if (m_reader.isAt(0, "SEQEND"))
            everyTag([](const DxfTag&) {});
    }

    std::string text(const DxfTag& tag) const { return withoutEscapes(m_encoding.decoded(tag.value)); }

    DxfTagReader m_reader;
    const DxfEncoding m_encoding;
    DxfDrawing m_drawing;
    std::size_t m_count = 0;
};

Header readHeader(const std::string& text, const std::string& fileName) {
    Header header;
    DxfTagReader reader(text, fileName);
    std::string variable;
    bool isInHeader = false;
    for (; !reader.isAt(0, "EOF"); reader.advance()) {
        const DxfTag& tag = reader.current();
        if (tag.code == 0 && isInHeader)
            break; // the end of the section
        isInHeader = isInHeader || reader.isAt(2, "HEADER");
        if (tag.code == 2 && !isInHeader)
            break; // a drawing may have no header
        if (tag.code == 9)
            variable = DxfTagReader::trimmed(tag);
        else if (variable == "$ACADVER" && tag.code == 1)
            header.version = DxfTagReader::trimmed(tag);
        else if (variable == "$DWGCODEPAGE" && tag.code == 3)
            header.codePage = DxfTagReader::trimmed(tag);
        else if (variable == "$INSUNITS" && tag.code == 70)
            header.units = reader.integer(tag);
    }
    return header;
}

/// Other files of drawings, which people take for DXF.
void requireAscii(const std::string& text, const std::string& fileName) {
    const std::string start = text.substr(0, 22);
    if (start.find("Binary DXF") != std::string::npos)
        refuseDrawing(
            fileName, 1,
            filled(Words::tr("expected an ASCII DXF drawing, found a binary one; save it as ASCII DXF")));
    if (start.rfind("AC10", 0) == 0)
        refuseDrawing(fileName, 1, filled(Words::tr("expected a DXF drawing, found DWG; save it as DXF")));
    const auto nul = text.find('\0');
    if (nul != std::string::npos)
        refuseDrawing(fileName, int(std::count(text.begin(), text.begin() + std::ptrdiff_t(nul), '\n')) + 1,
                      filled(Words::tr("expected an ASCII DXF drawing, found a NUL byte")));
}

} // namespace

std::string dxfNameKey(const std::string& name) {
    return QString::fromStdString(name).trimmed().toUpper().toStdString();
}

DxfDrawing readDxf(const std::string& text, const std::string& fileName,
                   const std::optional<std::string>& encoding) {
    requireAscii(text, fileName);
    const Header header = readHeader(text, fileName);
    DxfFileReader reader(text, fileName, header,
                         encoding ? DxfEncoding::named(*encoding)
                                  : DxfEncoding::ofFile(text, header.version, header.codePage));
    return reader.read();
}

} // namespace firecheck
