#include "compare/saved_report.h"

#include "InputError.h"
#include "json/Json.h"
#include "json/JsonPlace.h"
#include "json/parse_json.h"
#include "text/input_text.h"
#include "text/words.h"

#include <algorithm>
#include <map>
#include <utility>

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

std::size_t countOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_number_unsigned() ? found->get<std::size_t>() : 0;
}

/// A record of the engine's results.
struct Record {
    SavedFinding violation;
    bool isTold = false; ///< by a finding
};

using Records = std::map<std::string, std::vector<Record>>; ///< by key

SavedFinding violationAt(const Json& record, const JsonPlace& place) {
    SavedFinding violation;
    violation.rule = textAt(record, "name", place);
    violation.handle = textAt(record, "handle", place);
    violation.related = textsAt(record, "relatedHandles", place);
    return violation;
}

/// In the place of a sentence, which the report does not have.
std::string handlesText(const SavedFinding& violation) {
    std::string handles = "#" + violation.handle;
    for (const std::string& related : violation.related)
        handles += " #" + related;
    return filled(Words::tr("one that the report only counts: %1", "violation, handles"), handles);
}

/// Nothing of a report without results.
Records recordsOf(const Json& site, const JsonPlace& place) {
    Records records;
    if (!site.contains("results"))
        return records;
    readList(site, "results", place, [&](const Json& entry, const JsonPlace& at) {
        auto& filed = records[textAt(entry, "key", at)];
        readList(entry, "records", at, [&](const Json& record, const JsonPlace& recordPlace) {
            filed.push_back({violationAt(record, recordPlace)});
        });
    });
    return records;
}

SavedFinding findingAt(const Json& value, Records& records, const JsonPlace& place) {
    SavedFinding finding;
    finding.rule = textAt(value, "rule", place);
    finding.handle = textAt(value, "handle", place);
    finding.sentence = textAt(value, "sentence", place);
    finding.isAccepted = value.contains("accepted") && value["accepted"].is_string();
    finding.further = countOf(value, "further");
    finding.furtherAccepted = std::min(finding.further, countOf(value, "furtherAccepted"));
    finding.related = textsAt(value, "relatedHandles", place);
    const auto filed = records.find(textAt(value, "key", place));
    const auto index = member(value, "index", Json::value_t::number_unsigned, place).get<std::size_t>();
    if (filed != records.end() && index < filed->second.size()) {
        filed->second[index].isTold = true;
        finding.related = filed->second[index].violation.related;
    }
    bool isFirst = true;
    readList(value, "measures", place, [&](const Json& measure, const JsonPlace&) {
        if (isFirst)
            takeMeasure(measure, finding);
        isFirst = false;
    });
    return finding;
}

/// Puts the records that findings only count in the place of their counts. Which of several are accepted is
/// not known: they are taken for accepted where all are.
void tellFurther(const Records& records, SavedSite& site) {
    struct Counted {
        std::size_t further = 0;
        std::size_t accepted = 0;
        bool isTooFar = false;
    };
    std::map<std::pair<std::string, std::string>, Counted> counted; // by rule and element
    for (SavedFinding& finding : site.findings) {
        if (finding.further == 0)
            continue;
        Counted& own = counted[{finding.rule, finding.handle}];
        own.further += std::exchange(finding.further, 0);
        own.accepted += std::exchange(finding.furtherAccepted, 0);
        own.isTooFar = finding.isTooFar;
    }
    for (SavedFinding& finding : site.findings)
        finding.isOneOfMany = counted.count({finding.rule, finding.handle}) > 0;
    for (const auto& [key, filed] : records) {
        for (const Record& record : filed) {
            const auto own = counted.find({record.violation.rule, record.violation.handle});
            if (record.isTold || own == counted.end())
                continue;
            SavedFinding violation = record.violation;
            violation.sentence = handlesText(violation);
            violation.isAccepted = own->second.accepted == own->second.further;
            violation.isTooFar = own->second.isTooFar;
            violation.isOneOfMany = true;
            site.findings.push_back(std::move(violation));
        }
    }
}

SavedSite siteAt(const Json& value, const JsonPlace& place) {
    SavedSite site;
    site.file = textAt(value, "file", place);
    site.name = textAt(value, "name", place);
    Records records = recordsOf(value, place);
    readList(value, "findings", place, [&](const Json& finding, const JsonPlace& at) {
        site.findings.push_back(findingAt(finding, records, at));
    });
    if (!records.empty())
        tellFurther(records, site);
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
