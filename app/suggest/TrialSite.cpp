#include "suggest/TrialSite.h"

#include "cad/UdDbDocument.h"
#include "explain/element_noun.h"
#include "explain/sentence.h"
#include "report/plan/plan_shapes.h"
#include "site_file/site_keys.h"
#include "site_file/site_reader.h"

#include <algorithm>
#include <limits>

namespace firecheck {

namespace {

const std::string kHandleKey = "handle";
const std::string kBoxKind = "NUX_EDO_TYPE_FIREEXTINGUISHERBOX";

long long handleOf(const Json& object) {
    return object.at(kHandleKey).get<long long>();
}

/// The least distance that a rule asks for, mm; 0 for a rule without one.
double minimumOf(const NuxStandardCheckRule& rule, const firestandard::RuleRow* row) {
    if (rule.type == QLatin1String("distant"))
        return rule.distantValue.section(':', 0, 0).toDouble() * firestandard::kMillimetresPerMetre;
    const bool isBoxRule = row && row->test == firestandard::RuleTest::FireExtinguisherBox;
    return isBoxRule ? firestandard::kMaximumBoxDistance : 0.0;
}

TrialElement describe(const Site& site, long long handle) {
    TrialElement element;
    element.handle = handle;
    element.className = site.labels.at(handle).className;
    firestandard::ElementLabel label;
    label.handle = handle;
    label.name = site.labels.at(handle).name;
    if (const UdDbObject* object = site.document->GetItem(handle, UdDb::kForRead)) {
        label.noun = firestandard::elementNoun(*object);
        element.shape = planShapeOf(*object);
    }
    element.phrase = firestandard::labelPhrase(label);
    return element;
}

/// Puts a change into a list of objects as long as this lives.
class PutForNow {
public:
    PutForNow(const Change& change, Json& objects) : m_objects(objects), m_place(placeOfNew(objects)) {
        for (const ObjectChange& one : change) {
            if (one.index)
                m_before.emplace_back(*one.index, objects[*one.index]);
            else
                ++m_added;
        }
        TrialSite::put(change, objects);
    }
    ~PutForNow() {
        const auto first = m_objects.begin() + m_place;
        m_objects.erase(first, first + m_added);
        for (auto& [index, object] : m_before)
            m_objects[index] = std::move(object);
    }
    PutForNow(const PutForNow&) = delete;
    PutForNow& operator=(const PutForNow&) = delete;

    /// Before the last object.
    static std::ptrdiff_t placeOfNew(const Json& objects) {
        return objects.empty() ? 0 : static_cast<std::ptrdiff_t>(objects.size()) - 1;
    }

private:
    Json& m_objects;
    const std::ptrdiff_t m_place;
    std::ptrdiff_t m_added = 0;
    std::vector<std::pair<std::size_t, Json>> m_before;
};

bool meets(const hrx::CBox2d& a, const hrx::CBox2d& b) {
    return a.low.x <= b.high.x && b.low.x <= a.high.x && a.low.y <= b.high.y && b.low.y <= a.high.y;
}

} // namespace

TrialSite::TrialSite(Json site, const SiteJudge& judge) : m_judge(&judge), m_site(std::move(site)) {
    m_firstTypes.insert(kBoxKind);
    for (const NuxStandardCheckRule& rule : judge.rules()) {
        m_farthestLimit =
            std::max(m_farthestLimit, minimumOf(rule, firestandard::findRule(rule.name, rule.type)));
        m_firstTypes.insert(rule.elementType.toStdString());
    }
    readElements();
    m_verdict = m_judge->judge(m_site);
}

void TrialSite::readElements() {
    const Site site = readSite(m_site);
    m_elements.clear();
    m_indices.clear();
    for (const Json& object : m_site.at(kObjectsKey)) {
        m_indices[handleOf(object)] = m_elements.size();
        m_elements.push_back(describe(site, handleOf(object)));
    }
}

const Json& TrialSite::object(std::size_t index) const {
    return m_site.at(kObjectsKey)[index];
}

std::optional<std::size_t> TrialSite::indexOf(long long handle) const {
    const auto found = m_indices.find(handle);
    return found == m_indices.end() ? std::nullopt : std::optional(found->second);
}

Verdict TrialSite::verdictWith(const Change& change, const std::set<Offence>& asked) const {
    const PutForNow put(change, m_site.at(kObjectsKey));
    return m_judge->judge(m_site, asked);
}

void TrialSite::apply(const Change& change, Verdict verdict) {
    put(change, m_site.at(kObjectsKey));
    readElements();
    m_verdict = std::move(verdict);
}

bool TrialSite::isJudgedByPlace(std::size_t index) const {
    const std::string& className = m_elements[index].className;
    if (className == "wall" || className == "door")
        return false;
    if (className != "model" && className != "sizelessModel")
        return true;
    const Json& given = object(index);
    return given.contains(kSecondViewKey) ||
           m_firstTypes.count(given.at("identifier").get<std::string>()) > 0;
}

TrialElement TrialSite::elementOf(const Json& object) const {
    Json alone = object;
    alone.erase("doors");
    return describe(readSite({{kObjectsKey, Json::array({std::move(alone)})}}), handleOf(object));
}

long long TrialSite::freeHandle() const {
    if (m_indices.empty())
        return 1;
    const long long highest = m_indices.rbegin()->first;
    if (highest < std::numeric_limits<long long>::max())
        return std::max(highest + 1, 1LL);
    long long free = 1;
    while (m_indices.count(free) > 0)
        ++free;
    return free;
}

void TrialSite::put(const Change& change, Json& objects) {
    std::ptrdiff_t place = PutForNow::placeOfNew(objects);
    for (const ObjectChange& one : change)
        if (one.index)
            objects[*one.index] = one.object;
    for (const ObjectChange& one : change)
        if (!one.index)
            objects.insert(objects.begin() + place++, one.object);
}

Neighbourhood::Neighbourhood(const TrialSite& site, const hrx::CBox2d& region,
                             const std::set<long long>& handles)
    : m_site(site), m_part({{kObjectsKey, Json::array()}}) {
    const double margin = site.farthestLimit();
    const hrx::CBox2d wide{{region.low.x - margin, region.low.y - margin},
                           {region.high.x + margin, region.high.y + margin}};
    const auto matters = [&](std::size_t index) {
        const TrialElement& element = site.element(index);
        return index + 1 == site.size() || handles.count(element.handle) > 0 ||
               (site.isJudgedByPlace(index) && meets(element.shape.box, wide));
    };
    Json& objects = m_part[kObjectsKey];
    for (std::size_t index = 0; index < site.size(); ++index) {
        if (!matters(index))
            continue;
        m_slots[index] = objects.size();
        objects.push_back(site.object(index));
        objects.back().erase("doors"); // which may be out of reach
    }
    m_before = site.judge().judge(m_part).offences;
}

OffenceDifference Neighbourhood::differenceWith(const Change& change) {
    Change here = change;
    for (ObjectChange& one : here)
        if (one.index)
            one.index = m_slots.at(*one.index);
    const PutForNow put(here, m_part[kObjectsKey]);
    OffenceDifference difference = differenceBetween(m_before, m_site.judge().judge(m_part).offences);
    // What offends here alone does so for lack of a box that stands farther off.
    const Offences& known = m_site.verdict().offences;
    difference.worse.erase(std::remove_if(difference.worse.begin(), difference.worse.end(),
                                          [&](const Offence& offence) { return known.count(offence) == 0; }),
                           difference.worse.end());
    return difference;
}

} // namespace firecheck
