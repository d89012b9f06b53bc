#include "site_file/RefusedSite.h"

#include "site_file/site_keys.h"
#include "site_file/site_reader.h"
#include "text/shortened.h"

#include <algorithm>
#include <tuple>

namespace firecheck {

namespace {

using Error = RefusedSite::Error;

std::vector<Error> placed(const SiteFile& file, const std::vector<Refusal>& refusals) {
    std::vector<std::string> pointers;
    for (const Refusal& refusal : refusals)
        pointers.push_back(refusal.pointer);
    const std::vector<Place> places = file.placesOf(pointers);
    std::vector<Error> errors;
    for (std::size_t i = 0; i < refusals.size(); ++i)
        errors.push_back({refusals[i], places[i], file.objectAt(refusals[i].pointer)});
    std::stable_sort(errors.begin(), errors.end(), [](const Error& a, const Error& b) {
        return std::tie(a.place.line, a.place.column) < std::tie(b.place.line, b.place.column);
    });
    return errors;
}

std::vector<std::string> messagesOf(const std::string& fileName, const std::vector<Error>& errors) {
    std::vector<std::string> messages;
    for (const Error& error : errors) {
        const std::string object = error.object.text();
        messages.push_back(fileName + ":" + std::to_string(error.place.line) + ":" +
                           std::to_string(error.place.column) + ": " + object + (object.empty() ? "" : ", ") +
                           error.refusal.text());
    }
    return messages;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "\n") + line;
    return text;
}

} // namespace

std::string PointedObject::text() const {
    if (handle.empty())
        return {};
    std::string text = "#" + handle + (name.empty() ? "" : " \"" + shortened(name) + "\"");
    if (origin)
        text += " (" + (origin->entity.empty() ? "" : "entity " + origin->entity + ", ") + "layer \"" +
                shortened(origin->layer) + "\")";
    return text;
}

PointedObject pointedObject(const Json& site, const std::string& pointer) {
    Json::json_pointer object(pointer);
    const Json::json_pointer list("/" + kObjectsKey);
    while (!object.empty() && object.parent_pointer() != list)
        object.pop_back();
    if (object.empty() || !site.contains(object) || !site.at(object).is_object())
        return {};
    const Json& value = site.at(object);
    const auto handle = value.find("handle");
    const auto name = value.find("name");
    const bool hasHandle = handle != value.end() && handle->is_number_integer();
    return {hasHandle ? handle->dump() : std::string(),
            name != value.end() && name->is_string() ? name->get<std::string>() : std::string(),
            {}};
}

RefusedSite::RefusedSite(const std::string& fileName, const SiteFile& file,
                         const std::vector<Refusal>& refusals)
    : RefusedSite(fileName, placed(file, refusals)) {}

RefusedSite::RefusedSite(const std::string& fileName, std::vector<Error> errors)
    : RefusedSite(errors, messagesOf(fileName, errors)) {}

RefusedSite::RefusedSite(std::vector<Error> errors, std::vector<std::string> messages)
    : InputError(joined(messages)), m_errors(std::move(errors)), m_messages(std::move(messages)) {}

} // namespace firecheck
