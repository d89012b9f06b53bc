#include "suggest/suggestion_json.h"

namespace firecheck {

namespace {

Json pointJson(const std::optional<firestandard::PlanPoint>& point) {
    return point ? Json::array({point->x, point->y}) : Json();
}

Json removalJson(const SuggestedRemoval& removal) {
    return {{"rule", removal.rule},
            {"handle", std::to_string(removal.element)},
            {"other", std::to_string(removal.other)}};
}

Json objectJson(const SuggestedObject& object) {
    return {{"handle", std::to_string(object.handle)},
            {"class", object.className},
            {"new", object.isNew},
            {"keys", object.keys},
            {"from", pointJson(object.from)},
            {"to", pointJson(object.to)}};
}

Json valueJson(const SuggestedValue& value) {
    return {{"rule", value.rule},
            {"handle", std::to_string(value.element)},
            {"other", std::to_string(value.other)},
            {"value", value.value},
            {"unit", value.isArea ? "m2" : "m"}};
}

template <class Item> Json listOf(const std::vector<Item>& items, Json (*json)(const Item&)) {
    Json list = Json::array();
    for (const Item& item : items)
        list.push_back(json(item));
    return list;
}

Json stepJson(const SuggestedStep& step) {
    return {{"kind", step.kind},
            {"sentence", step.sentence},
            {"move", pointJson(step.move)},
            {"objects", listOf(step.objects, objectJson)},
            {"removes", listOf(step.removes, removalJson)},
            {"values", listOf(step.values, valueJson)}};
}

Json suggestionJson(const Suggestion& suggestion) {
    return {{"finding", suggestion.finding},
            {"steps", listOf(suggestion.steps, stepJson)},
            {"obstacle", suggestion.obstacle}};
}

Json remainderJson(const SitePlan::Remainder& remainder) {
    Json json = removalJson(remainder.what);
    json["sentence"] = remainder.sentence;
    json["obstacle"] = remainder.obstacle;
    return json;
}

} // namespace

Json suggestionsJson(const std::vector<Suggestion>& suggestions) {
    return listOf(suggestions, suggestionJson);
}

Json planJson(const SitePlan& plan) {
    return {{"steps", listOf(plan.steps, stepJson)}, {"remaining", listOf(plan.remaining, remainderJson)}};
}

} // namespace firecheck
