#include "edit/SiteDraft.h"

#include "site_file/site_keys.h"
#include "text/words.h"

#include <algorithm>
#include <limits>
#include <set>

namespace firecheck {

namespace {

constexpr std::size_t kMostSteps = 1000;
const std::string kHandleKey = "handle";

std::optional<long long> handleOf(const Json& object) {
    const auto handle = object.find(kHandleKey);
    if (handle == object.end() || !handle->is_number_integer())
        return std::nullopt;
    return handle->get<long long>();
}

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
    for (const auto& [key, value] : object.items())
        if (key != kHandleKey)
            result[key] = value;
    return result;
}

} // namespace

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
    // Where the objects stand once the edits so far are made: the list's own indices, and those of new ones.
    struct Placed {
        long long handle;
        const Json* object;
    };
    std::vector<Placed> places;
    std::set<long long> taken;
    for (const Json& object : objects()) {
        places.push_back({handleOf(object).value_or(0), &object});
        taken.insert(places.back().handle);
    }
    ObjectEdits edits;
    edits.reserve(changes.size()); // places point into it
    for (const RequestedChange& change : changes) {
        if (!change.object.is_null() && !change.object.is_object())
            throw RefusedChange(filled(Words::tr("expected an object")), change.handle, {});
        if (!change.handle) {
            const auto index = places.empty() ? 0 : places.size() - 1;
            const long long handle = handleOf(change.object).value_or(freeHandle(taken));
            taken.insert(handle);
            edits.push_back({index, Json(), withHandle(change.object, handle)});
            places.insert(places.begin() + static_cast<std::ptrdiff_t>(index), {handle, &edits.back().after});
            continue;
        }
        const auto place = std::find_if(places.begin(), places.end(),
                                        [&](const Placed& one) { return one.handle == *change.handle; });
        if (place == places.end())
            throw RefusedChange(filled(Words::tr("no object has the handle %1"), *change.handle),
                                change.handle, {});
        ObjectEdit edit{static_cast<std::size_t>(place - places.begin()), *place->object, Json()};
        if (!change.object.is_null()) {
            edit.after = keptWhereSame(edit.before, change.object);
            if (!edit.after.contains(kHandleKey) || edit.after.at(kHandleKey) != edit.before.at(kHandleKey))
                throw RefusedChange(
                    filled(Words::tr("expected the handle %1, which no change takes away"), *change.handle),
                    change.handle, kHandleKey);
        }
        edits.push_back(std::move(edit));
        if (change.object.is_null())
            places.erase(place);
        else
            place->object = &edits.back().after;
    }
    return edits;
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
