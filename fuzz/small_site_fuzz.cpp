// A few objects of all classes with any values that the schema of site files allows: a check survives them,
// names only what is there, and gives the same results when it is run again.

#include "ByteReader.h"
#include "InputError.h"
#include "base/rooted_file_name.h"
#include "cad/UdApDocManager.h"
#include "engine/NUXCheck.h"
#include "engine/NuxFireStandardCheck.h"
#include "require.h"
#include "site_file/site_classes.h"
#include "site_file/site_keys.h"
#include "site_file/site_reader.h"

#include <algorithm>

using namespace firecheck;

namespace {

constexpr int kMostObjects = 12;

class SiteMaker {
public:
    explicit SiteMaker(ByteReader& bytes) : m_bytes(bytes) {}

    Json site() {
        Json objects = Json::array();
        for (int handle = 1; handle <= kMostObjects && !m_bytes.isAtEnd(); ++handle) {
            objects.push_back(object(anyOf(siteClasses()), ObjectRole::InDocument));
            objects.back()["handle"] = handle;
            if (objects.back()["class"] == "door")
                m_door = handle;
        }
        return {{"objects", objects}};
    }

private:
    template <class List> typename List::const_reference anyOf(const List& list) {
        return list[static_cast<std::size_t>(m_bytes.below(static_cast<int>(list.size())))];
    }

    /// What every object may say is rare; what its class adds is common, and its shape is always there.
    Json object(const SiteClass& siteClass, ObjectRole role) {
        Json made;
        for (const KeyShape& key : objectKeys(siteClass, role))
            if (key.required || m_bytes.below(16) == 0)
                made[key.key] = value(key.schema());
        for (const KeyShape& key : siteClass.keys)
            if (key.required || key.key == "shapeKind" || m_bytes.below(4) != 0)
                made[key.key] = value(key.schema());
        made["class"] = siteClass.name;
        return made;
    }

    Json value(const Json& schema) {
        if (schema.contains("$ref"))
            return object(*std::find_if(siteClasses().begin(), siteClasses().end(),
                                        [](const SiteClass& siteClass) { return siteClass.isModel; }),
                          ObjectRole::SecondView);
        if (schema.contains("enum") || schema.contains("anyOf"))
            return schema.contains("enum") ? anyOf(schema["enum"]) : value(anyOf(schema["anyOf"]));
        const std::string type = schema["type"];
        if (type == "boolean")
            return m_bytes.below(4) == 0;
        if (type == "integer")
            return std::clamp<std::int64_t>(m_bytes.below(2) ? m_bytes.below(13) : 40 * m_bytes.byte(),
                                            schema["minimum"], schema["maximum"]);
        if (type == "number") {
            const double lowest = schema["minimum"];
            const double any = m_bytes.coordinate();
            return std::clamp<double>(lowest < 0.0 ? any : std::abs(any), lowest, schema["maximum"]);
        }
        if (type == "string")
            return anyOf(kTexts);
        if (type == "array")
            return list(schema);
        Json made;
        for (const auto& [key, property] : schema["properties"].items())
            made[key] = key == "door" ? m_door : value(property);
        return made;
    }

    Json list(const Json& schema) {
        Json made = Json::array();
        const bool isPoint = schema.contains("maxItems");
        const int count = isPoint ? schema["minItems"].get<int>() + m_bytes.below(2)
                                  : m_bytes.below(m_bytes.below(8) ? 6 : 80);
        for (int i = 0; i < count; ++i) {
            made.push_back(value(schema["items"]));
            if (!isPoint && made.back().size() == 3)
                made.back()[2] = m_bytes.bulge();
        }
        while (isPoint && made.size() > schema["maxItems"])
            made.erase(made.size() - 1);
        return made;
    }

    const Json kTexts = {"食堂", "NUX_EDO_TYPE_WOODYARD", "NUX_ELEMENT_TYPE_PREFABHOUSE",
                         "NUX_EDO_TYPE_ROAD"};
    ByteReader& m_bytes;
    Json m_door; ///< handle of the last door; null before there is one
};

QString told(const QMap<QString, std::vector<NuxStandardCheckRule>>& results) {
    QString text;
    for (auto entry = results.cbegin(); entry != results.cend(); ++entry)
        for (const NuxStandardCheckRule& record : *entry) {
            text += entry.key() + ' ' + record.name + ' ' + QString::number(record.handle);
            for (const qint64 handle : record.relatedHandles)
                text += ' ' + QString::number(handle);
            text += '\n';
        }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    setDriveRoot(QStringLiteral(SOURCE_DATA_DIRECTORY));
    ByteReader bytes(data, size);
    Site site;
    try {
        site = readSite(SiteMaker(bytes).site());
    } catch (const InputError&) {
        return 0; // two doors at one place of a wall
    }
    UdApDocument* document = UdDocManagerPtr()->open(std::move(site.document));

    NuxFireStandardCheck& engine = *NUXCheck::instance();
    engine.DoCheck();
    for (const auto& filed : engine.getMapRules())
        for (const NuxStandardCheckRule& record : filed)
            require(record.handle == 0 || document->Database()->hasHandle(record.handle),
                    "a record's element");
    const QString first = told(engine.getMapRules());
    require(!first.isEmpty(), "a site as small as this lacks something");
    engine.DoCheck();
    require(told(engine.getMapRules()) == first, "a check gives the same results again");
    UdDocManagerPtr()->close(document);
    return 0;
}
