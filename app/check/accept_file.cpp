#include "check/accept_file.h"

#include "InputError.h"
#include "json/JsonPlace.h"
#include "json/parse_json.h"
#include "text/input_text.h"

#include <QString>

#include <algorithm>
#include <map>
#include <set>

namespace firecheck {

namespace {

const std::string kAccepted = "accepted";
const std::string kRule = "rule";
const std::string kHandles = "handles";
const std::string kReason = "reason";

/// Tells violations apart as far as acceptances do.
using Identity = std::pair<std::string, std::vector<long long>>;

/// The object's value of that key. Refuses an object that has any key but the known ones.
const Json& member(const Json& object, const std::string& key, const std::set<std::string>& known,
                   const JsonPlace& place) {
    if (!object.is_object())
        refuse(place, "expected an object");
    for (const auto& item : object.items())
        if (known.count(item.key()) == 0)
            refuse(place, "unknown key \"" + item.key() + "\"");
    const auto found = object.find(key);
    if (found == object.end())
        refuse(place, "expected the key \"" + key + "\"");
    return *found;
}

std::string textAt(const Json& value, const JsonPlace& place, const std::string& what) {
    const std::string text = value.is_string() ? value.get<std::string>() : std::string();
    if (QString::fromStdString(text).trimmed().isEmpty())
        refuse(place, "expected " + what);
    return text;
}

std::vector<long long> handlesAt(const Json& value, const JsonPlace& place) {
    if (!value.is_array())
        refuse(place, "expected a list of handles");
    std::vector<long long> handles;
    for (std::size_t i = 0; i < value.size(); ++i) {
        bool isNumber = false;
        if (value[i].is_string())
            handles.push_back(QString::fromStdString(value[i].get<std::string>()).toLongLong(&isNumber));
        if (!isNumber)
            refuse(JsonPlace(place, i), "expected a handle as a text of digits");
    }
    std::sort(handles.begin(), handles.end());
    return handles;
}

Acceptance acceptanceAt(const Json& value, const JsonPlace& place) {
    const std::set<std::string> keys = {kRule, kHandles, kReason};
    Acceptance acceptance;
    acceptance.rule =
        textAt(member(value, kRule, keys, place), JsonPlace(place, kRule), "the name of a rule");
    acceptance.handles = handlesAt(member(value, kHandles, keys, place), JsonPlace(place, kHandles));
    acceptance.reason = textAt(member(value, kReason, keys, place), JsonPlace(place, kReason),
                               "the reason why this violation is accepted");
    return acceptance;
}

std::vector<long long> concernedHandles(const NuxStandardCheckRule& record) {
    std::vector<long long> handles(record.relatedHandles.begin(), record.relatedHandles.end());
    if (record.handle != 0)
        handles.push_back(record.handle);
    std::sort(handles.begin(), handles.end());
    return handles;
}

Identity identityOf(const NuxStandardCheckRule& record) {
    return {record.name.toStdString(), concernedHandles(record)};
}

std::string described(const Acceptance& acceptance) {
    std::string text = acceptance.rule;
    for (const long long handle : acceptance.handles)
        text += " #" + std::to_string(handle);
    return text + ": " + acceptance.reason;
}

} // namespace

std::vector<Acceptance> loadAcceptances(const std::string& fileName) {
    const Json value = parseJson(inputText(fileName, "a file of accepted violations"), fileName);
    try {
        const JsonPlace top;
        const Json& entries = member(value, kAccepted, {kAccepted}, top);
        const JsonPlace list(top, kAccepted);
        if (!entries.is_array())
            refuse(list, "expected a list of accepted violations");
        std::vector<Acceptance> acceptances;
        for (std::size_t i = 0; i < entries.size(); ++i)
            acceptances.push_back(acceptanceAt(entries[i], JsonPlace(list, i)));
        return acceptances;
    } catch (const InputError& error) {
        throw InputError(fileName + ": " + error.what());
    }
}

void acceptFindings(const std::vector<Acceptance>& acceptances, SiteReport& report) {
    std::map<Identity, std::vector<Finding*>> findings;
    for (Finding& finding : report.findings)
        findings[identityOf(report.record(finding))].push_back(&finding);
    for (const Acceptance& acceptance : acceptances) {
        const auto matching = findings.find({acceptance.rule, acceptance.handles});
        if (matching == findings.end()) {
            report.staleAcceptances.push_back(described(acceptance));
            continue;
        }
        for (Finding* finding : matching->second)
            finding->acceptedBecause = acceptance.reason;
    }
}

std::string acceptFileText(const SiteReport& report) {
    Json entries = Json::array();
    std::set<Identity> written;
    for (const Finding& finding : report.findings) {
        const Identity identity = identityOf(report.record(finding));
        if (!written.insert(identity).second)
            continue;
        Json handles = Json::array();
        for (const long long handle : identity.second)
            handles.push_back(std::to_string(handle));
        entries.push_back({{kRule, identity.first},
                           {kHandles, std::move(handles)},
                           {kReason, finding.acceptedBecause.value_or("")}});
    }
    return Json{{kAccepted, std::move(entries)}}.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace firecheck
