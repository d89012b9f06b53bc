#include "site_file/DrawingSource.h"

#include "site_file/site_keys.h"

#include <charconv>

namespace firecheck {

const DrawnOrigin* DrawingSource::origin(const std::string& pointer) const {
    const std::string start = "/" + kObjectsKey + "/";
    if (pointer.compare(0, start.size(), start) != 0)
        return nullptr;
    std::size_t index = 0;
    const auto parsed =
        std::from_chars(pointer.data() + start.size(), pointer.data() + pointer.size(), index);
    return parsed.ec == std::errc() && index < origins.size() ? &origins[index] : nullptr;
}

std::vector<Place> DrawingSource::placesOf(const std::vector<std::string>& pointers) const {
    std::vector<Place> places;
    for (const std::string& pointer : pointers) {
        const DrawnOrigin* known = origin(pointer);
        places.push_back({known ? known->line : 1, 1});
    }
    return places;
}

} // namespace firecheck
