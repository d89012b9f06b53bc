#include "check/accept_file.h"

#include "InputError.h"
#include "json/JsonPlace.h"
#include "json/parse_json.h"
#include "text/input_text.h"
#include "text/words.h"

#include <QDir>
#include <QFileInfo>
#include <QString>
#include <QStringList>

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
const std::string kValues = "values";
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

std::map<long long, double> valuesAt(const Json& value, const JsonPlace& place) {
    if (!value.is_object())
        refuse(place, "expected the values that are accepted, by handle");
    std::map<long long, double> values;
    for (const auto& item : value.items()) {
        bool isHandle = false;
        const long long handle = QString::fromStdString(item.key()).toLongLong(&isHandle);
        if (!isHandle || !item.value().is_number())
            refuse(JsonPlace(place, item.key()), "expected a handle and the number that is accepted");
        values[handle] = item.value().get<double>();
    }
    return values;
}

Acceptance acceptanceAt(const Json& value, const JsonPlace& place, bool needSites) {
    requireObject(value, {kSite, kRule, kHandles, kReason, kValue, kValues}, place);
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
    if (value.contains(kValues))
        acceptance.values = valuesAt(value[kValues], JsonPlace(place, kValues));
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

/// One place under all its spellings.
QString placeOf(const QString& fileName) {
    const QFileInfo info(fileName);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

/// The sites that are checked.
class GivenSites {
public:
    explicit GivenSites(const std::vector<std::string>& fileNames) {
        for (const std::string& fileName : fileNames) {
            const QString name = QString::fromStdString(fileName);
            m_sites.push_back({placeOf(name), name.section('/', -1)});
        }
    }

    /// The places of those that an entry is about. A name without directories stands for each site of that
    /// name, but where it leads to one of them by itself for this one only.
    QStringList placesFor(const Acceptance& acceptance) const {
        const QString site = QString::fromStdString(acceptance.site);
        const QString place = placeOf(site);
        QStringList places;
        for (const Given& each : m_sites) {
            if (!site.isEmpty() && each.place == place)
                return {place};
            if (site.isEmpty() || each.name == site)
                places << each.place;
        }
        places.removeDuplicates();
        return places;
    }

private:
    struct Given {
        QString place;
        QString name; ///< as given, without directories
    };
    std::vector<Given> m_sites;
};

void takeValues(const Finding& finding, Acceptance& acceptance) {
    if (finding.measures.size() < 2 || finding.measures.front().kind != Measure::Kind::Distance) {
        if (!finding.measures.empty())
            acceptance.value = finding.measures.front().value;
        return;
    }
    for (const Measure& measure : finding.measures)
        acceptance.values[measure.other] = measure.value;
}

/// What was accepted for a value of today, if anything was. The nearest were listed: an element that was not
/// lay no nearer than the last of them.
std::optional<double> acceptedFor(const Measure& now, bool isNearest, const Acceptance& acceptance) {
    if (acceptance.values.empty())
        return isNearest ? acceptance.value : std::nullopt;
    const auto own = acceptance.values.find(now.other);
    if (own != acceptance.values.end())
        return own->second;
    double last = 0.0;
    for (const auto& entry : acceptance.values)
        last = std::max(last, entry.second);
    return last;
}

bool isWorse(const Measure& now, double accepted) {
    const bool hasComeToTouch = now.kind == Measure::Kind::Distance && now.value <= 0.0;
    const bool isTooLittle = now.minimum && now.value < *now.minimum;
    return isTooLittle || hasComeToTouch ? now.value < accepted - kSameValue
                                         : now.value > accepted + kSameValue;
}

void accept(Finding& finding, const Acceptance& acceptance) {
    for (const Measure& now : finding.measures) {
        const auto accepted = acceptedFor(now, &now == &finding.measures.front(), acceptance);
        if (accepted && isWorse(now, *accepted)) {
            finding.outgrown = {*accepted, acceptance.reason};
            return;
        }
    }
    finding.acceptedBecause = acceptance.reason;
}

Json entryJson(const Acceptance& entry, bool tellSite) {
    Json handles = Json::array();
    for (const long long handle : entry.handles)
        handles.push_back(std::to_string(handle));
    Json json{{kRule, entry.rule}, {kHandles, std::move(handles)}, {kReason, entry.reason}};
    if (entry.value)
        json[kValue] = *entry.value;
    for (const auto& [handle, value] : entry.values)
        json[kValues][std::to_string(handle)] = value;
    if (tellSite || !entry.site.empty())
        json[kSite] = entry.site;
    return json;
}

} // namespace

std::vector<Acceptance> loadAcceptances(const std::string& fileName, const std::vector<std::string>& sites) {
    const Json value = parseJson(inputText(fileName, "a file of accepted violations"), fileName);
    try {
        const JsonPlace top;
        requireObject(value, {kAccepted}, top);
        const Json& entries = member(value, kAccepted, top);
        const JsonPlace list(top, kAccepted);
        if (!entries.is_array())
            refuse(list, "expected a list of accepted violations");
        std::vector<Acceptance> acceptances;
        const GivenSites given(sites);
        std::set<std::pair<QString, Identity>> known; // by the place of the site
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const JsonPlace place(list, i);
            acceptances.push_back(acceptanceAt(entries[i], place, sites.size() > 1));
            const Acceptance& entry = acceptances.back();
            QStringList sitePlaces = given.placesFor(entry);
            if (sitePlaces.isEmpty())
                sitePlaces << placeOf(QString::fromStdString(entry.site));
            for (const QString& sitePlace : sitePlaces)
                if (!known.insert({sitePlace, {entry.rule, entry.handles}}).second)
                    refuse(place, "expected one entry for each violation, found a second one");
        }
        return acceptances;
    } catch (const InputError& error) {
        throw InputError(fileName + ": " + error.what());
    }
}

std::vector<std::string> ofOtherSites(const std::vector<Acceptance>& acceptances,
                                      const std::vector<std::string>& sites) {
    const GivenSites given(sites);
    std::vector<std::string> entries;
    for (const Acceptance& entry : acceptances)
        if (given.placesFor(entry).isEmpty())
            entries.push_back(filled(Words::tr("%1, of %2, which is not checked", "acceptance, site file"),
                                     described(entry), entry.site));
    return entries;
}

void acceptFindings(const std::vector<Acceptance>& acceptances, const std::vector<std::string>& sites,
                    SiteReport& report) {
    const GivenSites given(sites);
    const QString reported = placeOf(QString::fromStdString(report.fileName));
    std::map<Identity, std::vector<Finding*>> findings;
    for (Finding& finding : report.findings)
        findings[identityOf(report.record(finding))].push_back(&finding);
    for (const Acceptance& acceptance : acceptances) {
        if (!given.placesFor(acceptance).contains(reported))
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

AcceptFileText::AcceptFileText(std::vector<Acceptance> acceptances, std::vector<std::string> sites)
    : m_entries(std::move(acceptances)), m_sites(std::move(sites)) {}

void AcceptFileText::add(const SiteReport& report) {
    const GivenSites given(m_sites);
    const QString reported = placeOf(QString::fromStdString(report.fileName));
    std::set<Identity> known;
    for (const Acceptance& entry : m_entries)
        if (given.placesFor(entry).contains(reported))
            known.insert({entry.rule, entry.handles});
    for (const Finding& finding : report.findings) {
        const Identity identity = identityOf(report.record(finding));
        if (!known.insert(identity).second)
            continue;
        m_entries.push_back({tellsSites() ? report.fileName : std::string(), identity.first, identity.second,
                             std::string(), std::nullopt});
        takeValues(finding, m_entries.back());
    }
}

std::string AcceptFileText::text() const {
    Json entries = Json::array();
    for (const Acceptance& entry : m_entries)
        entries.push_back(entryJson(entry, tellsSites()));
    return Json{{kAccepted, std::move(entries)}}.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace firecheck
