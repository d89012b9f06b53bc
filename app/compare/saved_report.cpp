#include "compare/saved_report.h"

#include "InputError.h"
#include "json/Json.h"
#include "json/JsonPlace.h"
#include "json/parse_json.h"
#include "text/input_text.h"
#include "text/words.h"

#include <map>

namespace firecheck {

namespace {

const Json& member(const Json& object, const std::string& key, Json::value_t type, const JsonPlace& place) {
    if (!object.is_object())
        refuse(place, filled(Words::tr("expected an object as a JSON report has it")));
    const auto found = object.find(key);
    if (found == object.end() || found->type() != type)
        refuse(JsonPlace(place, key), filled(Words::tr("expected what a JSON report has here")));
    return *found;
}

std::string textAt(const Json& object, const std::string& key, const JsonPlace& place) {
    return member(object, key, Json::value_t::string, place).get<std::string>();
}

/// Calls `read` with each item of a list and its place.
template <class Read>
void readList(const Json& object, const std::string& key, const JsonPlace& place, Read read) {
    const Json& list = member(object, key, Json::value_t::array, place);
    const JsonPlace at(place, key);
    for (std::size_t i = 0; i < list.size(); ++i)
        read(list[i], JsonPlace(at, i));
}

std::set<std::string> textsAt(const Json& object, const std::string& key, const JsonPlace& place) {
    std::set<std::string> texts;
    readList(object, key, place, [&](const Json& item, const JsonPlace& at) {
        if (!item.is_string())
            refuse(at, filled(Words::tr("expected what a JSON report has here")));
        texts.insert(item.get<std::string>());
    });
    return texts;
}

std::optional<double> numberOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_number() ? std::optional(found->get<double>()) : std::nullopt;
}

void takeMeasure(const Json& measure, SavedFinding& finding) {
    const auto value = numberOf(measure, "value");
    const auto minimum = numberOf(measure, "minimum");
    const auto maximum = numberOf(measure, "maximum");
    if (value && minimum && *value < *minimum)
        finding.missing = *minimum - *value;
    else if (value && maximum)
        finding.missing = *value - *maximum;
    finding.isTooFar = maximum && !minimum;
}

/// The related elements of each record, by key and index.
using Relations = std::map<std::string, std::vector<std::set<std::string>>>;

Relations relationsOf(const Json& site, const JsonPlace& place) {
    Relations relations;
    if (!site.contains("results"))
        return relations;
    readList(site, "results", place, [&](const Json& entry, const JsonPlace& at) {
        auto& records = relations[textAt(entry, "key", at)];
        readList(entry, "records", at, [&](const Json& record, const JsonPlace& recordPlace) {
            records.push_back(textsAt(record, "relatedHandles", recordPlace));
        });
    });
    return relations;
}

SavedFinding findingAt(const Json& value, const Relations& relations, const JsonPlace& place) {
    SavedFinding finding;
    finding.rule = textAt(value, "rule", place);
    finding.handle = textAt(value, "handle", place);
    finding.sentence = textAt(value, "sentence", place);
    finding.isAccepted = value.contains("accepted") && value["accepted"].is_string();
    finding.related = textsAt(value, "relatedHandles", place);
    const auto records = relations.find(textAt(value, "key", place));
    const auto index = member(value, "index", Json::value_t::number_unsigned, place).get<std::size_t>();
    if (records != relations.end() && index < records->second.size())
        finding.related = records->second[index];
    bool isFirst = true;
    readList(value, "measures", place, [&](const Json& measure, const JsonPlace&) {
        if (isFirst)
            takeMeasure(measure, finding);
        isFirst = false;
    });
    return finding;
}

SavedSite siteAt(const Json& value, const JsonPlace& place) {
    SavedSite site;
    site.file = textAt(value, "file", place);
    site.name = textAt(value, "name", place);
    const Relations relations = relationsOf(value, place);
    readList(value, "findings", place, [&](const Json& finding, const JsonPlace& at) {
        site.findings.push_back(findingAt(finding, relations, at));
    });
    readList(value, "judged", place, [&](const Json& judged, const JsonPlace& at) {
        if (textAt(judged, "verdict", at) != "noEvaluator")
            site.rules.insert(textAt(judged, "rule", at));
    });
    readList(value, "unjudged", place, [&](const Json& element, const JsonPlace& at) {
        for (const std::string& rule : textsAt(element, "rules", at))
            site.unjudged.emplace(textAt(element, "handle", at), rule);
    });
    return site;
}

} // namespace

SavedReport loadReport(const std::string& fileName) {
    const Json value = parseJson(inputText(fileName, filled(Words::tr("a JSON report"))), fileName);
    SavedReport report{fileName, {}};
    try {
        readList(value, "sites", JsonPlace(), [&](const Json& site, const JsonPlace& place) {
            report.sites.push_back(siteAt(site, place));
        });
    } catch (const InputError& error) {
        throw InputError(fileName + ": " + error.what());
    }
    return report;
}

} // namespace firecheck
