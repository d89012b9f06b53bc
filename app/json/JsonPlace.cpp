#include "json/JsonPlace.h"

#include "InputError.h"
#include "json/Json.h"

namespace firecheck {

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

void refuse(const JsonPlace& place, const std::string& reason) {
    const std::string pointer = place.pointer();
    throw InputError((pointer.empty() ? "top level" : pointer) + ": " + reason);
}

} // namespace firecheck
