#include "json/json_places.h"

#include "json/Json.h"

#include <algorithm>
#include <map>

namespace firecheck {

namespace {

/// The wanted values as a tree of keys and indices.
struct Wanted {
    std::size_t offset = 0; ///< in the text, once it was met
    ByteRange value;        ///< behind the key, where there is one
    bool isMet = false;
    std::map<std::string, Wanted> inner;
};

class Scanner {
public:
    explicit Scanner(const std::string& text) : m_text(text) {}

    void scan(Wanted& top) {
        static const std::string byteOrderMark = "\xEF\xBB\xBF";
        if (m_text.compare(0, byteOrderMark.size(), byteOrderMark) == 0)
            m_at = byteOrderMark.size();
        skipBlanks();
        scanValue(&top, m_at);
    }

private:
    void skipBlanks() { m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size()); }

    std::string scanString() {
        const std::size_t start = m_at++;
        while (m_text[m_at] != '"')
            m_at += m_text[m_at] == '\\' ? 2 : 1;
        ++m_at;
        return m_text.substr(start, m_at - start);
    }

    static Wanted* innerOf(Wanted* wanted, const std::string& key) {
        if (!wanted)
            return nullptr;
        const auto found = wanted->inner.find(key);
        return found == wanted->inner.end() ? nullptr : &found->second;
    }

    void scanValue(Wanted* wanted, std::size_t offset) {
        if (wanted) {
            wanted->offset = offset;
            wanted->value.begin = m_at;
            wanted->isMet = true;
        }
        const char first = m_text[m_at];
        if (first == '{' || first == '[')
            scanInner(wanted, first == '{');
        else if (first == '"')
            scanString();
        else
            m_at = std::min(m_text.find_first_of(",]} \t\r\n", m_at), m_text.size());
        if (wanted)
            wanted->value.end = m_at;
    }

    void scanInner(Wanted* wanted, bool isObject) {
        ++m_at;
        for (std::size_t index = 0;; ++index) {
            skipBlanks();
            if (m_text[m_at] == ',') {
                ++m_at;
                skipBlanks();
            }
            if (m_text[m_at] == '}' || m_text[m_at] == ']')
                break;
            const std::size_t offset = m_at;
            std::string key = std::to_string(index);
            if (isObject) {
                key = scanString();
                if (wanted)
                    key = Json::parse(key).get<std::string>();
                m_at = m_text.find(':', m_at) + 1;
                skipBlanks();
            }
            scanValue(innerOf(wanted, key), offset);
        }
        ++m_at;
    }

    const std::string& m_text;
    std::size_t m_at = 0;
};

std::vector<std::string> stepsOf(const std::string& pointer) {
    std::vector<std::string> steps;
    for (Json::json_pointer rest(pointer); !rest.empty(); rest.pop_back())
        steps.push_back(rest.back());
    std::reverse(steps.begin(), steps.end());
    return steps;
}

Wanted wantedOf(const std::vector<std::string>& pointers) {
    Wanted top;
    for (const std::string& pointer : pointers) {
        Wanted* wanted = &top;
        for (const std::string& step : stepsOf(pointer))
            wanted = &wanted->inner[step];
    }
    return top;
}

/// The value, or the innermost one around it.
const Wanted& metBy(const Wanted& top, const std::string& pointer) {
    const Wanted* wanted = &top;
    for (const std::string& step : stepsOf(pointer)) {
        const Wanted& inner = wanted->inner.at(step);
        if (!inner.isMet)
            break;
        wanted = &inner;
    }
    return *wanted;
}

} // namespace

Place placeAt(const std::string& text, std::size_t offset) {
    const auto begin = text.begin();
    const auto place = begin + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
    const auto line = std::count(begin, place, '\n') + 1;
    const auto lineStart = std::find(std::make_reverse_iterator(place), text.rend(), '\n').base();
    const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto column = std::count_if(lineStart, place, startsCharacter) + 1;
    return {static_cast<int>(line), static_cast<int>(column)};
}

std::vector<Place> jsonPlaces(const std::string& text, const std::vector<std::string>& pointers) {
    Wanted top = wantedOf(pointers);
    Scanner(text).scan(top);
    std::map<std::size_t, Place> places; // each line is counted once, however many values stand there
    for (const std::string& pointer : pointers)
        places[metBy(top, pointer).offset];
    std::size_t start = 0;
    int linesBefore = 0;
    for (auto& [offset, place] : places) {
        const std::size_t lineStart = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
        linesBefore += static_cast<int>(
            std::count(text.begin() + std::ptrdiff_t(start), text.begin() + std::ptrdiff_t(offset), '\n'));
        start = offset;
        place = {linesBefore + 1, placeAt(text.substr(lineStart, offset - lineStart), offset).column};
    }
    std::vector<Place> result;
    result.reserve(pointers.size());
    for (const std::string& pointer : pointers)
        result.push_back(places[metBy(top, pointer).offset]);
    return result;
}

std::vector<ByteRange> jsonRanges(const std::string& text, const std::vector<std::string>& pointers) {
    Wanted top = wantedOf(pointers);
    Scanner(text).scan(top);
    std::vector<ByteRange> ranges;
    for (const std::string& pointer : pointers)
        ranges.push_back(metBy(top, pointer).value);
    return ranges;
}

} // namespace firecheck
