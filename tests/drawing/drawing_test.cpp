#include "drawing/drawing_of_site.h"
#include "drawing/dxf/write_dxf.h"
#include "drawing/load_site.h"
#include "text/input_text.h"

#include <QFile>
#include <gmock/gmock.h>

using namespace firecheck;
using testing::HasSubstr;

namespace {

std::string section(const std::string& name, const std::string& tags) {
    return "0\nSECTION\n2\n" + name + "\n" + tags + "0\nENDSEC\n";
}

std::string drawing(const std::string& entities, const std::string& blocks = {}) {
    return section("BLOCKS", blocks) + section("ENTITIES", entities) + "0\nEOF\n";
}

std::string block(const std::string& name, const std::string& tags) {
    return "0\nBLOCK\n2\n" + name + "\n10\n0\n20\n0\n" + tags + "0\nENDBLK\n";
}

std::string insert(const std::string& name, const std::string& further = {}) {
    return "0\nINSERT\n8\n0\n2\n" + name + "\n10\n0\n20\n0\n" + further;
}

/// What the reader complains of; empty for a drawing that it reads.
std::string complaint(const std::string& text) {
    try {
        parseDrawing(text, "plan.dxf");
    } catch (const InputError& error) {
        return error.what();
    }
    return {};
}

Json objectsOf(const std::string& text) {
    return parseDrawing(text, "plan.dxf").value["objects"];
}

TEST(Drawing, WhatIsNoDrawingIsRefusedAtItsLine) {
    const std::string nested = [] {
        std::string blocks;
        for (int i = 0; i < 40; ++i)
            blocks += block("B" + std::to_string(i), insert("B" + std::to_string(i + 1)));
        return blocks;
    }();
    const std::string bomb = [] {
        std::string blocks;
        for (int i = 0; i < 20; ++i) {
            std::string inner;
            for (int k = 0; k < 10; ++k)
                inner += insert("B" + std::to_string(i + 1));
            blocks += block("B" + std::to_string(i), inner);
        }
        return blocks + block("B20", "0\nLINE\n10\n0\n20\n0\n11\n1\n21\n1\n");
    }();
    const std::string line = "0\nLINE\n8\nWALLS\n10\n0\n20\n0\n11\n";
    const std::string gate = "0\nPOINT\n8\nGATES\n10\n3\n20\n0\n";
    const struct {
        std::string text;
        std::string expected;
    } rows[] = {
        {"AutoCAD Binary DXF\r\n\x1A", "plan.dxf:1: expected an ASCII DXF drawing, found a binary one"},
        {"AC1032\1\2\3", "plan.dxf:1: expected a DXF drawing, found DWG"},
        {std::string("0\nSECTION\n\0\0", 12), "plan.dxf:3: expected an ASCII DXF drawing, found a NUL byte"},
        {drawing("0\nCIRCLE\n8\nOFFICES\n10\n1e300\n20\n0\n40\n5\n"), "expected a number from -1e12 to 1e12"},
        {"0\nSECTION\n2\nENTITIES\n \n", "plan.dxf:6: expected the end of the drawing"},
        {"", "plan.dxf:1: expected the end of the drawing, \"EOF\": the file is cut off here"},
        {"0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n", "plan.dxf:8: expected the end of the drawing"},
        {"{}", "plan.dxf:1: expected a group code of DXF, found \"{}\""},
        {"0\nSECTION\n2\nENTITIES\n0\nEOF\n", "plan.dxf:6: expected ENDSEC at the end of section ENTITIES"},
        {"0\nLINE\n0\nEOF\n", "plan.dxf:2: expected a SECTION of a DXF drawing, found \"LINE\""},
        {drawing("ten\n0\n"), "plan.dxf:11: expected a group code of DXF, found \"ten\""},
        {drawing("0\nLINE\n99999\n0\n"), "plan.dxf:13: expected a group code"},
        {drawing(line + "1e999\n21\n0\n"),
         "plan.dxf:20: expected a finite number for group 11, found \"1e999\""},
        {drawing(line + "nan\n21\n0\n"), "plan.dxf:20: expected a finite number"},
        {drawing(line + "1,5\n21\n0\n"), "plan.dxf:20: expected a finite number for group 11, found \"1,5\""},
        {drawing(line + "5\n"), "plan.dxf:12: LINE: expected group 21"},
        {drawing("0\nLWPOLYLINE\n20\n1\n"), "plan.dxf:14: expected group 10 of a vertex before group 20"},
        {drawing("0\nLWPOLYLINE\n10\n0\n10\n9\n20\n7\n"), "plan.dxf:14: LWPOLYLINE: expected group 20"},
        {drawing("0\nLWPOLYLINE\n10\n0\n20\n0\n10\n9\n42\n1\n"),
         "plan.dxf:18: LWPOLYLINE: expected group 20"},
        {drawing("0\nARC\n10\n0\n20\n0\n40\n-5\n50\n0\n51\n90\n"),
         "plan.dxf:18: ARC: expected a radius of at least 0"},
        {drawing("0\nLWPOLYLINE\n70\n1.5\n"), "plan.dxf:14: expected a whole number for group 70"},
        {drawing(insert("A", "70\n30000\n71\n30000\n")),
         "plan.dxf:12: INSERT: expected an array of at most 1000000 cells"},
        {drawing(insert("A"), block("A", insert("a"))),
         "expected blocks within at most 32 others, and none that holds"},
        {drawing(insert("GATE"), block("GATE", insert("GATE"))), "none that holds itself"},
        {drawing(insert("B0"), nested), "expected blocks within at most 32 others"},
        {drawing(insert("B0"), bomb), "expected blocks that come to at most 3000000 entities"},
        {drawing("0\nPOINT\n10\n0\n20\n0\n1001\nFIRECHECK\n1000\n{\"class\": \n"),
         "plan.dxf:12: extended data of the POINT: JSON:1:11: expected JSON"},
        {drawing("0\nPOINT\n10\n0\n20\n0\n1001\nFIRECHECK\n1000\n{\"class\": \"rod\"}\n"),
         "extended data of the POINT: expected the \"class\""},
        {drawing("0\nPOINT\n5\n1F\n8\nGATES\n10\n0\n20\n0\n1001\nFIRECHECK\n1000\nPOST_WIDTH=wide\n"),
         "plan.dxf:12:1: #31 (entity 1F, layer \"GATES\"), /objects/0/postWidth: expected an integer"},
        {drawing(line + "5\n21\n0\n1001\nFIRECHECK\n1000\nSTART=here\n" + gate),
         "plan.dxf:12:1: #1 (layer \"WALLS\"), /objects/0/start: expected a point"},
        {drawing(line + "5\n21\n0\n1001\nFIRECHECK\n1000\n{\"class\": \"wall\", \"doors\": [7]}\n" + gate),
         "/objects/0/doors/0: expected an object"},
        {drawing("0\nCIRCLE\n8\nLAWN\n10\n0\n20\n0\n40\n5\n1001\nFIRECHECK\n1000\nCIRCLE=7\n"),
         "/objects/0/circle: expected an object"},
    };
    for (const auto& row : rows)
        EXPECT_THAT(complaint(row.text), HasSubstr(row.expected));
}

TEST(Drawing, EveryPrefixOfADrawingIsRefused) {
    const std::string whole =
        drawing("0\nCIRCLE\n8\nLAWN\n10\n0\n20\n0\n40\n900\n" + insert("A"), block("A", ""));
    EXPECT_EQ(complaint(whole), "");
    for (std::size_t length = 0; length + 2 < whole.size(); ++length)
        EXPECT_THAT(complaint(whole.substr(0, length)), testing::StartsWith("plan.dxf:")) << length;
}

TEST(Drawing, GroupsMayStandInAnyOrder) {
    const struct {
        std::string entity;
        std::string expected;
    } rows[] = {
        {"0\nCIRCLE\n40\n900\n230\n-1\n20\n5\n10\n7\n8\nLAWN\n5\nA\n",
         R"({"class": "building", "handle": 10, "identifier": "NUX_EDO_TYPE_LAWN", "circle": {"center": [-7, 5], "radius": 900}})"},
        {"0\nLWPOLYLINE\n43\n3000\n8\nROADS\n10\n0\n20\n0\n91\n0\n10\n9000\n20\n0\n70\n0\n5\nB\n90\n2\n",
         R"({"class": "road", "handle": 11, "start": [0, 0], "end": [9000, 0], "width": 3000})"},
        {"0\nLWPOLYLINE\n210\n0\n220\n0\n230\n-1\n8\nROADS\n10\n0\n20\n0\n42\n1\n10\n8000\n20\n0\n",
         R"({"class": "road", "handle": 1, "start": [0, 0], "end": [-8000, 0], "through": [-4000, -4000]})"},
        {"0\nPOLYLINE\n66\n1\n8\nWALLS\n5\nC\n0\nVERTEX\n20\n0\n10\n0\n0\nVERTEX\n10\n5000\n20\n0\n0\nSEQEND\n",
         R"({"class": "wall", "handle": 12, "start": [0, 0], "end": [5000, 0]})"},
        {"0\nPOINT\n10\n1\n20\n2\n8\nplan$0$Extinguishers\n102\n{ACAD_REACTORS\n5\nFF\n102\n}\n5\nD\n",
         R"({"class": "extinguisherBox", "handle": 13, "position": [1, 2]})"},
        {"0\nMTEXT\n10\n9000\n20\n0\n1\nx\n0\nPOINT\n8\nHYDRANTS\n5\nE\n10\n1\n20\n2\n101\nEmbedded Object\n10\n9\n20\n9\n",
         R"({"class": "model", "handle": 14, "identifier": "NUX_EDO_TYPE_FIREHYDRANT", "position": [1, 2],
             "length": 400, "depth": 400, "height": 800})"},
    };
    for (const auto& row : rows) {
        const Json objects = objectsOf(drawing(row.entity));
        ASSERT_EQ(objects.size(), 1u) << row.entity;
        const nlohmann::json expected = nlohmann::json::parse(row.expected);
        EXPECT_EQ(nlohmann::json::parse(objects[0].dump()), expected) << row.entity;
    }
}

std::string rectangle(double x, double y, double width, double height, const std::string& further) {
    std::string tags = "0\nLWPOLYLINE\n70\n1\n" + further;
    for (const auto& [dx, dy] : {std::pair(0.0, 0.0), {width, 0.0}, {width, height}, {0.0, height}})
        tags += "10\n" + std::to_string(x + dx) + "\n20\n" + std::to_string(y + dy) + "\n";
    return tags;
}

TEST(Drawing, WhatDoesNotCountDoesNotCountInABlockEither) {
    const std::string layers =
        section("TABLES", "0\nLAYER\n2\nFROZEN\n70\n1\n0\nLAYER\n2\nOFF\n70\n0\n62\n-7\n");
    const std::string house = rectangle(0, 0, 8000, 5000, "8\n0\n");
    const struct {
        std::string further; ///< in the block
        std::string blocks;
        bool isPart;
    } rows[] = {
        {rectangle(-9000, -9000, 27000, 24000, "8\n0\n"), "", true},
        {rectangle(-9000, -9000, 27000, 24000, "8\nFROZEN\n"), "", false},
        {rectangle(-9000, -9000, 27000, 24000, "8\noff\n"), "", false},
        {rectangle(-9000, -9000, 27000, 24000, "8\n0\n67\n1\n"), "", false},
        {rectangle(-9000, -9000, 27000, 24000, "8\n0\n60\n1\n"), "", false},
        {rectangle(-9000, -9000, 27000, 24000, "8\nDefpoints\n"), "", false},
        {"0\nINSERT\n8\nDefpoints\n2\nLARGE\n10\n0\n20\n0\n",
         block("LARGE", rectangle(-9000, -9000, 27000, 24000, "8\n0\n")), false},
        {"0\nINSERT\n8\nOFF\n2\nLARGE\n10\n0\n20\n0\n",
         block("LARGE", rectangle(-9000, -9000, 27000, 24000, "8\n0\n")), false},
        {"0\nINSERT\n8\nOFF\n2\nLARGE\n10\n0\n20\n0\n",
         block("LARGE", rectangle(-9000, -9000, 27000, 24000, "8\nA\n")), true},
        {"0\nINSERT\n8\nFROZEN\n2\nLARGE\n10\n0\n20\n0\n",
         block("LARGE", rectangle(-9000, -9000, 27000, 24000, "8\nA\n")), false},
        {insert("LARGE"), block("LARGE", rectangle(-9000, -9000, 27000, 24000, "8\n0\n")), true},
    };
    for (const auto& row : rows) {
        const std::string blocks = row.blocks + block("OFFICE", house + row.further);
        const Json objects = objectsOf(layers + drawing(insert("OFFICE"), blocks));
        ASSERT_EQ(objects.size(), 1u) << row.further;
        EXPECT_EQ(objects[0]["length"], row.isPart ? 27000 : 8000) << row.further;
    }
    // Layers that are off hide what lies on them; frozen ones whole blocks.
    for (const auto& [layer, count] : {std::pair("OFF", 1u), {"FROZEN", 0u}, {"A", 2u}}) {
        const std::string carrier =
            block("CARRIER", rectangle(0, 0, 8000, 5000, "8\nOFFICES\n") + insert("OFFICE"));
        const std::string entities = "0\nINSERT\n8\n" + std::string(layer) + "\n2\nCARRIER\n10\n0\n20\n0\n";
        const Json objects = objectsOf(layers + drawing(entities, carrier + block("OFFICE", house)));
        EXPECT_EQ(objects.size(), count) << layer;
    }
    // An insert on a layer that does not count is an element by its block, and what lies on "0" is its shape.
    EXPECT_EQ(objectsOf(drawing("0\nINSERT\n8\nDefpoints\n2\nOFFICE\n10\n0\n20\n0\n",
                                block("OFFICE", house)))[0]["length"],
              8000);
}

TEST(Drawing, AGateIsEnteredIntoAWallThatWasExported) {
    const std::string data = R"({"class": "wall", "doors": [{"distance": 13000, "door": null}]})";
    const Json objects =
        objectsOf(drawing("0\nLINE\n8\nWALLS\n5\nA\n10\n0\n20\n0\n11\n50000\n21\n0\n1001\nFIRECHECK\n1000\n" +
                          data + "\n0\nLINE\n8\nGATES\n5\nB\n10\n10000\n20\n0\n11\n16000\n21\n0\n"));
    const char* const expected = R"([{"distance": 13000, "door": null},
                                     {"distance": 13000, "door": 11, "key": 13000.001, "width": 6000}])";
    EXPECT_EQ(nlohmann::json::parse(objects[0]["doors"].dump()), nlohmann::json::parse(expected));
}

TEST(Drawing, WhatStandsInAHouseThatIsABlockIsNotLost) {
    const std::string box = insert("HYDRANT") + "0\nTEXT\n8\nNOTES\n10\n1000\n20\n2000\n40\n500\n1\n食堂\n";
    const std::string parts =
        box + "0\nPOINT\n8\nEXTINGUISHERS\n10\n1000\n20\n1000\n"
              "0\nLINE\n8\nWALLS\n10\n0\n20\n0\n11\n9\n21\n0\n0\nLINE\n8\nHOUSES\n10\n0\n20\n0\n"
              "11\n9\n21\n0\n0\nHATCH\n8\n0\n";
    const std::string blocks = block("HYDRANT", rectangle(-200, -200, 400, 400, "8\n0\n")) +
                               block("PARTS", parts) +
                               block("HOUSE", rectangle(0, 0, 8000, 5000, "8\n0\n") + insert("PARTS"));
    const SiteFile file =
        parseDrawing(drawing(insert("HOUSE", "5\nFF\n70\n2\n44\n9000\n"), blocks), "plan.dxf");
    std::string found;
    for (const Json& object : file.value["objects"])
        found += object["class"].get<std::string>() + " " + object.value("use", "-") + " " +
                 (object.contains("center") ? object["center"] : object["position"]).dump() + "\n";
    EXPECT_EQ(found, "closedHouse 食堂 [4000,2500]\nmodel - [0,0]\nextinguisherBox - [1000,1000]\n"
                     "closedHouse 食堂 [13000,2500]\nmodel - [9000,0]\nextinguisherBox - [10000,1000]\n");
    std::string told;
    for (const DrawingDoubt& doubt : file.drawing->doubts)
        told += doubt.code == "not-taken-up" ? doubt.message : "";
    EXPECT_EQ(told, "2 LINE on layer \"WALLS\" not taken up: it is part of a block that is one element");
}

TEST(Drawing, DuplicateAndMissingHandlesAreReplacedAndTold) {
    std::string entities;
    for (const char* const handle : {"1F", "1F", "none"})
        entities += "0\nCIRCLE\n8\nLAWN\n10\n0\n20\n0\n40\n900\n5\n" + std::string(handle) + "\n";
    const SiteFile file = parseDrawing(drawing(entities), "plan.dxf");
    std::vector<long long> handles;
    for (const Json& object : file.value["objects"])
        handles.push_back(object["handle"].get<long long>());
    EXPECT_EQ(handles, (std::vector<long long>{31, 32, 33}));
    ASSERT_EQ(file.drawing->doubts.size(), 1u);
    EXPECT_EQ(file.drawing->doubts[0].code, "replaced-handle");
}

TEST(Drawing, NamesMeanWhatTheyNameLast) {
    const struct {
        std::string name;
        std::string expected; ///< "" for what means nothing
    } rows[] = {
        {"总配电箱", "model"},    {"二级配电箱", "model"},      {"总配电室", "totalStepDownSubstation"},
        {"消防管路", ""},         {"消防道路", "road"},         {"临时消防通路", "road"},
        {"消防车道边线", "road"}, {"消防道路灯", "ignore"},     {"宿舍楼道路灯", "ignore"},
        {"围墙大门", "door"},     {"大门围墙", "wall"},         {"围墙", "wall"},
        {"1#大门位置", "door"},   {"Site$0$Fire Lane", "road"},
    };
    for (const auto& row : rows) {
        const LayerRow* const found = LayerMap::convention().rowOfLayer(row.name);
        EXPECT_EQ(found ? found->values["class"].get<std::string>() : "", row.expected) << row.name;
        EXPECT_EQ(found && found->values.contains("fireRoad"), row.expected == "road") << row.name;
    }
}

TEST(Drawing, AClassThatIsNoneIsTold) {
    const struct {
        std::string data;
        std::string expected;
        std::string suggestion; ///< "-" where nothing is told
    } rows[] = {
        {"CLASS=POSTER", "poster", "-"},
        {"Class=Tower_Crane", "towerCrane", "-"},
        {"CLASS=towerCran", "wall", "towerCrane"},
        {"CLASS=tree", "wall", ""},
        {"类型=砖墙", "wall", "-"},
        {"CLASS=", "wall", "-"},
    };
    for (const auto& row : rows) {
        const SiteFile file = parseDrawing(drawing("0\nLINE\n5\nA\n8\nWALLS\n10\n0\n20\n0\n11\n9000\n21\n0\n"
                                                   "1001\nFIRECHECK\n1000\n" +
                                                   row.data + "\n"),
                                           "plan.dxf");
        EXPECT_EQ(file.value["objects"][0]["class"], row.expected) << row.data;
        std::string told = "-";
        for (const DrawingDoubt& doubt : file.drawing->doubts)
            if (doubt.code == "not-taken-up")
                told = doubt.suggestion;
        EXPECT_EQ(told, row.suggestion) << row.data;
    }
}

TEST(Drawing, TablesOfLayersAreRefusedWithTheirPlaces) {
    const struct {
        std::string text;
        std::string expected;
    } rows[] = {
        {R"({"rows": [{"layers": "A", "class": "rod"}]})",
         R"(/rows/0/class: unknown class "rod"; did you mean "road"?)"},
        {R"({"rows": [{"layers": "A", "class": "road", "widht": 3}]})",
         R"(/rows/0/widht: unknown key "widht"; did you mean "width"?)"},
        {R"({"rows": [{"layers": "A", "class": "prefabHouse", "use": "x"}]})",
         "/rows/0/use: expected one of"},
        {R"({"rows": [{"class": "road"}]})", R"(/rows/0: expected "names", "layers" or "blocks")"},
        {R"({"rows": [], "unit": "yards"})", "/unit: expected"},
        {R"({"rowes": []})", R"(unknown key "rowes"; did you mean "rows"?)"},
    };
    const QByteArray name = "layer_map_of_test.json";
    for (const auto& row : rows) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.text.data(), qint64(row.text.size()));
        file.close();
        try {
            LayerMap::load(name.toStdString());
            ADD_FAILURE() << row.text;
        } catch (const InputError& error) {
            EXPECT_THAT(error.what(), HasSubstr(row.expected));
        }
    }
    QFile::remove(name);
}

TEST(Drawing, ExamplesAreWhatIsExported) {
    const std::string examples = SOURCE_DIRECTORY "/examples/";
    const Json site = loadSiteFile(examples + "tower-site.json").value;
    const LayerMap chinese = LayerMap::load(examples + "layers/chinese.json");
    EXPECT_EQ(writeDxf(drawingOfSite(site, nullptr)), inputText(examples + "tower-site.dxf", "a drawing"));
    EXPECT_EQ(writeDxf(drawingOfSite(site, &chinese)),
              inputText(examples + "tower-site-chinese.dxf", "a drawing"));
}

TEST(Drawing, OddSitesReadBackEqual) {
    const std::string text = R"({"$schema": "x", "name": "\\U+5B8B %%c", "note": "n", "objects": [
        {"class": "drawing", "handle": -5, "name": "😀 \\M+5CBCE"},
        {"class": "element", "handle": 9223372036854775807, "identifier": "X", "refusesToOpen": true},
        {"class": "building", "handle": 3, "identifier": "X", "shapeKind": 77},
        {"class": "building", "handle": 4, "identifier": "X", "shapeKind": "circle", "center": [0, 0, 7], "length": 3,
         "depth": 4, "angle": -0.1, "circle": {"center": [1, 2, 3], "radius": 5, "radiusPoint": [1, 7]},
         "polyline": []},
        {"class": "futureHouse", "handle": 5, "polyline": [[0, 0], [5, 0], [5, 0], [0, 0]]},
        {"class": "futureHouse", "handle": 6, "center": [0.1, 1e11], "length": 0, "depth": 7.3, "elevation": 1e-7},
        {"class": "road", "handle": 7, "start": [0, 0], "end": [0, 0], "through": [3, 4], "outline": "none"},
        {"class": "road", "handle": 8, "start": [0, 0], "end": [10, 0], "through": [20, 0], "shapeKind": "straight"},
        {"class": "door", "handle": 9, "position": [0, 0, 8], "leafWidth": 0, "angle": 17},
        {"class": "wall", "handle": 10, "start": [0.3, 0.1], "end": [7, 7],
         "doors": [{"distance": 5, "door": 9, "key": 2}, {"distance": 5, "flagged": true, "door": null}]},
        {"class": "model", "handle": 11, "identifier": "M", "position": [0, 0], "length": 0, "depth": 0},
        {"class": "towerCrane", "handle": 12, "position": [1, 1], "jibHeight": 0, "frontJibLength": 0, "angle": 360},
        {"class": "extinguisherBox", "handle": 13, "position": [1, 1],
         "secondView": {"class": "sizelessModel", "identifier": "Y", "position": [2, 2]}}]})";
    const SiteFile file = parseSiteFile(text, "odd.json");
    const SiteFile back = parseDrawing(writeDxf(drawingOfSite(file.value, nullptr)), "odd.dxf");
    EXPECT_EQ(nlohmann::json::parse(back.value.dump()), nlohmann::json::parse(file.value.dump()));
}

} // namespace
