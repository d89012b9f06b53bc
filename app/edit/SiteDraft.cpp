#include "edit/SiteDraft.h"

#include "json/Codec.h"
#include "site_file/site_keys.h"
#include "text/words.h"

#include <algorithm>
#include <limits>
#include <set>

namespace firecheck {

namespace {

constexpr std::size_t kMostSteps = 1000;
const std::string kHandleKey = "handle";

/// The value as given, but for what says the same as before: a browser writes 3.0 as 3, and an integer beyond
/// its doubles as a neighbour.
Json keptWhereSame(const Json& before, const Json& given) {
    if (before.is_number() && given.is_number())
        return before.get<double>() == given.get<double>() ? before : given;
    if (before.is_array() && given.is_array() && before.size() == given.size()) {
        Json result = Json::array();
        for (std::size_t i = 0; i < given.size(); ++i)
            result.push_back(keptWhereSame(before[i], given[i]));
        return result;
    }
    if (!before.is_object() || !given.is_object())
        return given;
    Json result = Json::object();
    for (const auto& [key, value] : before.items())
        if (given.contains(key))
            result[key] = keptWhereSame(value, given.at(key));
    for (const auto& [key, value] : given.items())
        if (!before.contains(key))
            result[key] = value;
    return result;
}

long long freeHandle(const std::set<long long>& taken) {
    const long long highest = taken.empty() ? 0 : *taken.rbegin();
    if (highest < std::numeric_limits<long long>::max())
        return std::max(highest + 1, 1LL);
    long long free = 1;
    while (taken.count(free) > 0)
        ++free;
    return free;
}

/// With the handle behind the class, where people look for it.
Json withHandle(const Json& object, long long handle) {
    Json result = Json::object();
    if (object.contains(kClassKey))
        result[kClassKey] = object.at(kClassKey);
    result[kHandleKey] = handle;
    result.update(object);
    return result;
}

/// Edits of a list of objects, and where the objects stand once those so far are made.
class EditsInTheMaking {
public:
    EditsInTheMaking(const Json& objects, std::size_t count) {
        m_edits.reserve(count); // places point into it
        for (const Json& object : objects) {
            m_places.push_back({handleOf(object).value_or(0), &object});
            m_taken.insert(m_places.back().handle);
        }
    }

    void add(const Json& object) {
        if (!object.is_object())
            throw RefusedChange(filled(Words::tr("expected an object")), std::nullopt, {});
        const std::size_t index = m_places.empty() ? 0 : m_places.size() - 1;
        m_edits.push_back(
            {index, Json(), object.contains(kHandleKey) ? object : withHandle(object, freeHandle(m_taken))});
        const Json& added = m_edits.back().after;
        const long long handle = handleOf(added).value_or(0);
        m_taken.insert(handle);
        m_places.insert(m_places.begin() + static_cast<std::ptrdiff_t>(index), {handle, &added});
    }

    void change(long long handle, const Json& object) {
        if (!object.is_object())
            throw RefusedChange(filled(Words::tr("expected an object")), handle, {});
        const auto place = placeOf(handle);
        const Json& before = *place->object;
        Json after = keptWhereSame(before, object);
        if (!after.contains(kHandleKey) || after.at(kHandleKey) != before.at(kHandleKey))
            throw RefusedChange(
                filled(Words::tr("expected the handle %1, which no change takes away"), handle), handle,
                kHandleKey);
        m_edits.push_back({indexOf(place), before, std::move(after)});
        place->object = &m_edits.back().after;
    }

    void remove(long long handle) {
        const auto place = placeOf(handle);
        m_edits.push_back({indexOf(place), *place->object, Json()});
        m_places.erase(place);
    }

    ObjectEdits take() { return std::move(m_edits); }

private:
    struct Place {
        long long handle;
        const Json* object;
    };
    using Places = std::vector<Place>;

    Places::iterator placeOf(long long handle) {
        const auto place = std::find_if(m_places.begin(), m_places.end(),
                                        [&](const Place& one) { return one.handle == handle; });
        if (place == m_places.end())
            throw RefusedChange(filled(Words::tr("no object has the handle %1"), handle), handle, {});
        return place;
    }
    std::size_t indexOf(Places::iterator place) { return static_cast<std::size_t>(place - m_places.begin()); }

    Places m_places;
    std::set<long long> m_taken;
    ObjectEdits m_edits;
};

} // namespace

std::optional<long long> handleOf(const Json& object) {
    const auto handle = object.find(kHandleKey);
    if (handle == object.end())
        return std::nullopt;
    try {
        return integer<long long>().read(*handle, JsonPlace());
    } catch (const RefusedJson&) {
        return std::nullopt;
    }
}

SiteDraft::SiteDraft(Json site) : m_site(std::move(site)) {}

Json& SiteDraft::list() {
    return m_site.at(kObjectsKey);
}

const Json& SiteDraft::objects() const {
    return m_site.at(kObjectsKey);
}

std::optional<std::size_t> SiteDraft::indexOf(long long handle) const {
    const Json& all = objects();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Json& object) { return handleOf(object) == handle; });
    if (found == all.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - all.begin());
}

const Json* SiteDraft::object(long long handle) const {
    const auto index = indexOf(handle);
    return index ? &objects()[*index] : nullptr;
}

ObjectEdits SiteDraft::editsFor(const std::vector<RequestedChange>& changes) const {
    EditsInTheMaking edits(objects(), changes.size());
    for (const RequestedChange& change : changes) {
        if (!change.handle)
            edits.add(change.object);
        else if (change.object.is_null())
            edits.remove(*change.handle);
        else
            edits.change(*change.handle, change.object);
    }
    return edits.take();
}

SiteDraft::Trial::Trial(SiteDraft& draft, const ObjectEdits& edits) : m_draft(draft), m_edits(edits) {
    make(m_edits, m_draft.list());
}

SiteDraft::Trial::~Trial() {
    firecheck::undo(m_edits, m_draft.list());
}

void SiteDraft::keep(ObjectEdits edits) {
    make(edits, list());
    m_steps.resize(m_done);
    if (m_saved && *m_saved > m_done)
        m_saved.reset();
    m_steps.push_back(std::move(edits));
    ++m_done;
    if (m_steps.size() > kMostSteps) {
        m_steps.erase(m_steps.begin());
        --m_done;
        if (m_saved)
            m_saved = *m_saved > 0 ? std::optional(*m_saved - 1) : std::nullopt;
    }
}

ObjectEdits SiteDraft::undo() {
    firecheck::undo(m_steps[--m_done], list());
    return m_steps[m_done];
}

ObjectEdits SiteDraft::redo() {
    make(m_steps[m_done], list());
    return m_steps[m_done++];
}

} // namespace firecheck
