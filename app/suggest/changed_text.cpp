#include "suggest/changed_text.h"

#include "json/json_places.h"
#include "json/parse_json.h"
#include "site_file/site_keys.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <vector>

namespace firecheck {

namespace {

const std::string kListPointer = "/" + kObjectsKey;

/// As people write values in a line: [1, 2], {"a": 1}.
std::string inlineText(const Json& value) {
    if (!value.is_structured())
        return value.dump();
    std::string text;
    for (const auto& [key, inner] : value.items())
        text += (text.empty() ? "" : ", ") + (value.is_object() ? Json(key).dump() + ": " : std::string()) +
                inlineText(inner);
    return value.is_object() ? "{" + text + "}" : "[" + text + "]";
}

/// Bytes to be replaced by others.
struct Edit {
    std::string pointer; ///< of a value of the text
    enum class Where { Instead, Before, Behind } where;
    std::string text;
};

std::string pointerTo(std::size_t index, const std::string& key) {
    Json::json_pointer pointer(kListPointer);
    pointer.push_back(std::to_string(index));
    pointer.push_back(key);
    return pointer.to_string();
}

void appendEdits(std::size_t index, const Json& before, const Json& after, std::vector<Edit>& edits) {
    std::string further;
    for (const auto& [key, value] : after.items()) {
        if (!before.contains(key))
            further += ", " + Json(key).dump() + ": " + inlineText(value);
        else if (before.at(key) != value)
            edits.push_back({pointerTo(index, key), Edit::Where::Instead, inlineText(value)});
    }
    if (further.empty())
        return;
    std::string lastKey;
    for (const auto& item : before.items())
        lastKey = item.key();
    edits.push_back({pointerTo(index, lastKey), Edit::Where::Behind, further});
}

std::string edited(std::string text, const std::vector<Edit>& edits) {
    std::vector<std::string> pointers;
    for (const Edit& edit : edits)
        pointers.push_back(edit.pointer);
    const std::vector<ByteRange> ranges = jsonRanges(text, pointers);
    std::vector<std::pair<ByteRange, const std::string*>> pieces;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        ByteRange range = ranges[i];
        if (edits[i].where == Edit::Where::Before)
            range.end = range.begin;
        else if (edits[i].where == Edit::Where::Behind)
            range.begin = range.end;
        pieces.emplace_back(range, &edits[i].text);
    }
    // From the end on, so that places stay. What is put behind a value comes before what replaces it.
    std::stable_sort(pieces.begin(), pieces.end(), [](const auto& a, const auto& b) {
        return std::pair(a.first.begin, a.first.end) > std::pair(b.first.begin, b.first.end);
    });
    for (const auto& [range, piece] : pieces)
        text.replace(range.begin, range.end - range.begin, *piece);
    return text;
}

/// What stands between the last two objects of the list, a comma and mostly a line break.
std::string separatorIn(const std::string& text, std::size_t objectCount) {
    if (objectCount < 2)
        return ", ";
    const std::string last = kListPointer + "/" + std::to_string(objectCount - 1);
    const std::string previous = kListPointer + "/" + std::to_string(objectCount - 2);
    const std::vector<ByteRange> ranges = jsonRanges(text, {previous, last});
    return text.substr(ranges[0].end, ranges[1].begin - ranges[0].end);
}

} // namespace

std::string changedSiteText(const std::string& text, const Json& before, const Json& after) {
    const Json& old = before.at(kObjectsKey);
    const Json& now = after.at(kObjectsKey);
    const std::size_t added = now.size() - old.size();
    const std::size_t placeOfNew = old.empty() ? 0 : old.size() - 1;
    const auto placeNow = [&](std::size_t index) { return index < placeOfNew ? index : index + added; };
    std::vector<Edit> edits;
    for (std::size_t i = 0; i < old.size(); ++i)
        if (old[i] != now[placeNow(i)])
            appendEdits(i, old[i], now[placeNow(i)], edits);
    std::string further;
    const std::string separator = separatorIn(text, old.size());
    for (std::size_t i = placeOfNew; i < placeOfNew + added; ++i)
        further += inlineText(now[i]) + (old.empty() && i + 1 == added ? std::string() : separator);
    if (!further.empty() && old.empty())
        edits.push_back({kListPointer, Edit::Where::Instead, "[" + further + "]"});
    else if (!further.empty())
        edits.push_back({kListPointer + "/" + std::to_string(placeOfNew), Edit::Where::Before, further});
    std::string result = edited(text, edits);
    if (parseJson(result, "the changed site") != after)
        throw std::logic_error("the changed site reads otherwise than it was judged");
    return result;
}

} // namespace firecheck
