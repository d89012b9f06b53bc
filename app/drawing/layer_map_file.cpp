#include "drawing/LayerMap.h"
#include "drawing/dxf_units.h"
#include "json/Field.h"
#include "json/json_places.h"
#include "json/parse_json.h"
#include "site_file/site_reader.h"
#include "text/input_text.h"
#include "text/shortened.h"
#include "text/words.h"

#include <QFile>

#include <algorithm>
#include <set>

// Resources of a static library are linked only when they are asked for, from outside any namespace.
static void initialiseResources() {
    Q_INIT_RESOURCE(drawing_assets);
}

namespace firecheck {

namespace {

const std::string kUnitOfDrawing = "of the drawing";

/// The keys of a row that are not those of objects.
const std::set<std::string> kRowKeys = {"names", "layers", "blocks", "note"};

std::vector<KeyShape> tableKeys() {
    const auto any = [] { return Json::object(); };
    return {{"note", "a remark for readers of the file", false, any},
            {"unit", "the unit of the drawing", false, any},
            {"rows", "what layers and blocks mean", true, any},
            {"assumed", "values for what nothing else says, by class", false, any},
            {"attributes", "keys that attributes of blocks stand for", false, any},
            {"values", "words that stand for values", false, any}};
}

std::vector<std::string> readTexts(const Json& value, const JsonPlace& place) {
    if (value.is_string())
        return {value.get<std::string>()};
    if (!value.is_array())
        refuseType(value, place, filled(Words::tr("a text or a list of texts")));
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (!value[i].is_string())
            refuseType(value[i], JsonPlace(place, i), filled(Words::tr("a text")));
        texts.push_back(value[i].get<std::string>());
    }
    return texts;
}

} // namespace

/// Reads a table from its JSON; what is wrong is refused with its place.
class LayerMapReader {
public:
    LayerMap read(const Json& value, const JsonPlace& top) {
        checkKeys(value, top, tableKeys());
        const auto member = [&](const char* key, auto take) {
            const auto found = value.is_object() ? value.find(key) : value.end();
            const std::string name = key;
            const JsonPlace place(top, name);
            if (found != value.end())
                place.attempt([&] { take(*found, place); });
        };
        member("unit", [this](const Json& unit, const JsonPlace& place) { readUnit(unit, place); });
        member("rows", [this](const Json& rows, const JsonPlace& place) { readRows(rows, place); });
        member("assumed",
               [this](const Json& assumed, const JsonPlace& place) { readAssumed(assumed, place); });
        member("attributes", [this](const Json& attributes, const JsonPlace& place) {
            requireObject(attributes, place);
            for (const auto& [tag, keys] : attributes.items())
                m_map.m_attributes[nameKey(tag)] = readTexts(keys, JsonPlace(place, tag));
        });
        member("values", [this](const Json& words, const JsonPlace& place) {
            requireObject(words, place);
            for (const auto& [word, meaning] : words.items())
                for (const std::string& text : readTexts(meaning, JsonPlace(place, word)))
                    m_map.m_words[nameKey(word)] = text;
        });
        return std::move(m_map);
    }

private:
    static void requireObject(const Json& value, const JsonPlace& place) {
        if (!value.is_object())
            refuseType(value, place, filled(Words::tr("an object")));
    }

    void readUnit(const Json& value, const JsonPlace& place) {
        std::string known;
        for (const DxfUnit& unit : dxfUnits()) {
            known += (known.empty() ? "\"" : ", \"") + std::string(unit.name) + "\"";
            if (value == unit.name)
                m_map.m_unit = {unit.millimetres, unit.code};
        }
        if (!m_map.m_unit && value != kUnitOfDrawing)
            refuse(place, filled(Words::tr("expected \"%1\" or one of %2"), kUnitOfDrawing, known));
    }

    void readRows(const Json& rows, const JsonPlace& place) {
        if (!rows.is_array())
            refuseType(rows, place, filled(Words::tr("a list of rows")));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const JsonPlace rowPlace(place, i);
            rowPlace.attempt([&] { readRow(rows[i], rowPlace); });
        }
    }

    void readRow(const Json& value, const JsonPlace& place) {
        requireObject(value, place);
        LayerRow row;
        row.values = Json::object();
        for (const auto& [key, member] : value.items()) {
            const JsonPlace memberPlace(place, key);
            if (kRowKeys.count(key) == 0)
                row.values[key] = member;
            else if (key != "note")
                for (const std::string& pattern : readTexts(member, memberPlace)) {
                    if (key != "blocks")
                        row.layers.push_back(pattern);
                    if (key != "layers")
                        row.blocks.push_back(pattern);
                }
        }
        if (row.layers.empty() && row.blocks.empty())
            refuse(place, filled(Words::tr("expected \"names\", \"layers\" or \"blocks\"")));
        if (!row.values.contains("class"))
            refuse(place,
                   filled(Words::tr("expected the key \"class\" (what the elements are, or \"ignore\")")));
        if (!row.isIgnored())
            requireValues(row.values, place);
        m_map.m_rows.push_back(std::move(row));
    }

    /// Whether an object may have the class and values, as the reader of sites sees it.
    static void requireValues(const Json& values, const JsonPlace& place) {
        Json object = values;
        object["handle"] = 1;
        try {
            readSite({{"objects", {std::move(object)}}});
        } catch (const RefusedJson& refused) {
            for (const Refusal& refusal : refused.refusals()) {
                const std::size_t start = std::min(refusal.pointer.size(), std::string("/objects/0").size());
                const Json::json_pointer within(refusal.pointer.substr(start));
                // The drawing gives what the row lacks.
                if (!within.empty() && values.contains(within))
                    throw RefusedJson(
                        {{place.pointer() + within.to_string(), refusal.reason, refusal.suggestion}});
            }
        }
    }

    void readAssumed(const Json& assumed, const JsonPlace& place) {
        requireObject(assumed, place);
        for (const auto& [name, values] : assumed.items()) {
            if (name == "note")
                continue;
            const JsonPlace classPlace(place, name);
            requireObject(values, classPlace);
            Json object = values;
            object["class"] = name;
            requireValues(object, classPlace);
        }
        m_map.m_assumed = assumed;
    }

    LayerMap m_map;
};

namespace {

LayerMap readText(const std::string& text, const std::string& name) {
    const Json value = parseJson(text, name);
    std::vector<Refusal> refusals;
    const JsonPlace top(refusals);
    LayerMap map;
    top.attempt([&] { map = LayerMapReader().read(value, top); });
    if (refusals.empty())
        return map;
    std::string message;
    for (const Refusal& refusal : refusals) {
        const Place place = jsonPlaces(text, {refusal.pointer}).front();
        message += (message.empty() ? "" : "\n") + name + ":" + std::to_string(place.line) + ":" +
                   std::to_string(place.column) + ": " + refusal.text();
    }
    throw InputError(message);
}

} // namespace

std::string LayerMap::conventionText() {
    initialiseResources();
    QFile file(":/drawing/convention.json");
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The program lacks its table of layers.");
    return file.readAll().toStdString();
}

const LayerMap& LayerMap::convention() {
    static const LayerMap map = readText(conventionText(), "the table of layers");
    return map;
}

LayerMap LayerMap::load(const std::string& fileName) {
    return readText(inputText(fileName, filled(Words::tr("a table of layers"))), fileName);
}

} // namespace firecheck
