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
const std::string kSite = "site";
const std::string kValue = "value";
constexpr double kSameValue = 1e-6; ///< metres, square metres; what rounding may do

/// Tells violations apart as far as acceptances do.
using Identity = std::pair<std::string, std::vector<long long>>;

/// Refuses what is no object or has any key but the known ones.
void requireObject(const Json& object, const std::set<std::string>& known, const JsonPlace& place) {
    if (!object.is_object())
        refuse(place, "expected an object");
    for (const auto& item : object.items())
        if (known.count(item.key()) == 0)
            refuse(place, "unknown key \"" + item.key() + "\"");
}

const Json& member(const Json& object, const std::string& key, const JsonPlace& place) {
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

Acceptance acceptanceAt(const Json& value, const JsonPlace& place, bool needSites) {
    requireObject(value, {kSite, kRule, kHandles, kReason, kValue}, place);
    Acceptance acceptance;
    if (needSites || value.contains(kSite))
        acceptance.site =
            textAt(member(value, kSite, place), JsonPlace(place, kSite), "the name of a site file");
    acceptance.rule = textAt(member(value, kRule, place), JsonPlace(place, kRule), "the name of a rule");
    acceptance.handles = handlesAt(member(value, kHandles, place), JsonPlace(place, kHandles));
    acceptance.reason = textAt(member(value, kReason, place), JsonPlace(place, kReason),
                               "the reason why this violation is accepted");
    const auto given = value.find(kValue);
    if (given != value.end() && !given->is_null()) {
        if (!given->is_number())
            refuse(JsonPlace(place, kValue), "expected the value that is accepted, a number or null");
        acceptance.value = given->get<double>();
    }
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

bool isOfSite(const Acceptance& acceptance, const SiteReport& report) {
    const QString file = QString::fromStdString(report.fileName);
    const QString site = QString::fromStdString(acceptance.site);
    return site.isEmpty() || site == file || site == file.section('/', -1);
}

std::optional<double> valueOf(const Finding& finding) {
    return finding.measures.empty() ? std::nullopt : std::optional(finding.measures.front().value);
}

bool isWorse(const Finding& finding, double accepted) {
    if (finding.measures.empty())
        return false;
    const Measure& now = finding.measures.front();
    const bool isTooLittle = now.minimum && now.value < *now.minimum;
    return isTooLittle ? now.value < accepted - kSameValue : now.value > accepted + kSameValue;
}

void accept(Finding& finding, const Acceptance& acceptance) {
    if (acceptance.value && isWorse(finding, *acceptance.value))
        finding.outgrown = {*acceptance.value, acceptance.reason};
    else
        finding.acceptedBecause = acceptance.reason;
}

Json entryJson(const Acceptance& entry, bool tellSite) {
    Json handles = Json::array();
    for (const long long handle : entry.handles)
        handles.push_back(std::to_string(handle));
    Json json{{kRule, entry.rule}, {kHandles, std::move(handles)}, {kReason, entry.reason}};
    if (entry.value)
        json[kValue] = *entry.value;
    if (tellSite || !entry.site.empty())
        json[kSite] = entry.site;
    return json;
}

} // namespace

std::vector<Acceptance> loadAcceptances(const std::string& fileName, bool needSites) {
    const Json value = parseJson(inputText(fileName, "a file of accepted violations"), fileName);
    try {
        const JsonPlace top;
        requireObject(value, {kAccepted}, top);
        const Json& entries = member(value, kAccepted, top);
        const JsonPlace list(top, kAccepted);
        if (!entries.is_array())
            refuse(list, "expected a list of accepted violations");
        std::vector<Acceptance> acceptances;
        std::set<std::pair<std::string, Identity>> known;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const JsonPlace place(list, i);
            acceptances.push_back(acceptanceAt(entries[i], place, needSites));
            const Acceptance& entry = acceptances.back();
            if (!known.insert({entry.site, {entry.rule, entry.handles}}).second)
                refuse(place, "expected one entry for each violation, found a second one");
        }
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
        if (!isOfSite(acceptance, report))
            continue;
        const auto matching = findings.find({acceptance.rule, acceptance.handles});
        if (matching == findings.end()) {
            report.staleAcceptances.push_back(described(acceptance));
            continue;
        }
        for (Finding* finding : matching->second)
            accept(*finding, acceptance);
    }
}

AcceptFileText::AcceptFileText(std::vector<Acceptance> acceptances, bool tellSites)
    : m_entries(std::move(acceptances)), m_tellSites(tellSites) {}

void AcceptFileText::add(const SiteReport& report) {
    std::set<Identity> known;
    for (const Acceptance& entry : m_entries)
        if (isOfSite(entry, report))
            known.insert({entry.rule, entry.handles});
    for (const Finding& finding : report.findings) {
        const Identity identity = identityOf(report.record(finding));
        if (known.insert(identity).second)
            m_entries.push_back({m_tellSites ? report.fileName : std::string(), identity.first,
                                 identity.second, std::string(), valueOf(finding)});
    }
}

std::string AcceptFileText::text() const {
    Json entries = Json::array();
    for (const Acceptance& entry : m_entries)
        entries.push_back(entryJson(entry, m_tellSites));
    return Json{{kAccepted, std::move(entries)}}.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace firecheck
