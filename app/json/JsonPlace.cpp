#include "json/JsonPlace.h"

#include "json/Json.h"
#include "text/advice.h"
#include "text/shortened.h"
#include "text/words.h"

namespace firecheck {

namespace {

std::string message(const std::vector<Refusal>& refusals) {
    std::string text;
    for (const Refusal& refusal : refusals)
        text += (text.empty() ? "" : "\n") + refusal.text();
    return text;
}

} // namespace

std::string Refusal::text() const {
    const std::string place = pointer.empty() ? filled(Words::tr("top level")) : shortened(pointer);
    return place + ": " + reasonAndAdvice(reason, suggestion);
}

RefusedJson::RefusedJson(std::vector<Refusal> refusals)
    : InputError(message(refusals)), m_refusals(std::move(refusals)) {}

std::string JsonPlace::pointer() const {
    if (!m_parent)
        return {};
    Json::json_pointer step;
    if (m_key)
        step.push_back(*m_key);
    else
        step.push_back(std::to_string(m_index));
    return m_parent->pointer() + step.to_string();
}

void refuse(const JsonPlace& place, const std::string& reason, const std::string& suggestion) {
    throw RefusedJson({{place.pointer(), reason, suggestion}});
}

} // namespace firecheck
