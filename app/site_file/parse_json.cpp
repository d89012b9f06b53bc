#include "site_file/parse_json.h"

#include "InputError.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <vector>

namespace {

constexpr int kDeepestNesting = 32;
constexpr std::size_t kMostKeys = 256;

/// Reads the text for the parser and lets others see how far it has come.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    explicit CountingIterator(const char*& position) : m_position(&position) {}

    reference operator*() const { return **m_position; }
    CountingIterator& operator++() {
        ++*m_position;
        return *this;
    }
    bool operator==(const CountingIterator& other) const { return *m_position == *other.m_position; }
    bool operator!=(const CountingIterator& other) const { return !(*this == other); }

private:
    const char** m_position;
};

std::string lineAndColumn(const std::string& text, std::size_t offset) {
    const auto begin = text.begin();
    const auto place = begin + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
    const auto line = std::count(begin, place, '\n') + 1;
    const auto lineStart = std::find(std::make_reverse_iterator(place), text.rend(), '\n').base();
    const auto startsCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    const auto column = std::count_if(lineStart, place, startsCharacter) + 1;
    return std::to_string(line) + ":" + std::to_string(column);
}

/// What the parser objects to, without its own reckoning of the place and the token, which may be endless.
std::string objection(const std::string& parserMessage) {
    const auto start = parserMessage.find(" - ");
    std::string reason = start == std::string::npos ? parserMessage : parserMessage.substr(start + 3);
    const auto token = reason.find("; last read: ");
    if (token == std::string::npos)
        return reason;
    const auto expected = reason.rfind("; expected ");
    const std::string tail =
        expected != std::string::npos && expected > token ? reason.substr(expected) : std::string();
    return reason.substr(0, token) + tail;
}

/// Watches what the parser meets for what JSON as such allows.
class Guard {
public:
    bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
        if (event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start) {
            if (depth >= kDeepestNesting)
                throw InputError("nested deeper than " + std::to_string(kDeepestNesting) + " levels");
            if (event == Json::parse_event_t::object_start)
                m_keys.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            m_keys.pop_back();
        } else if (event == Json::parse_event_t::key) {
            const auto& key = parsed.get_ref<const std::string&>();
            if (!m_keys.back().insert(key).second)
                throw InputError("the key \"" + key + "\" occurs twice in its object");
            if (m_keys.back().size() > kMostKeys)
                throw InputError("an object with more than " + std::to_string(kMostKeys) + " keys");
        }
        return true;
    }

private:
    std::vector<std::unordered_set<std::string>> m_keys;
};

} // namespace

Json parseJson(const std::string& text, const std::string& name) {
    const char* position = text.data();
    const char* end = text.data() + text.size();
    const auto fail = [&](const std::string& reason) -> InputError {
        const auto read = static_cast<std::size_t>(position - text.data());
        const bool atEnd = reason.find("unexpected end of input") != std::string::npos;
        const std::size_t offset = atEnd || read == 0 ? read : read - 1;
        return InputError(name + ":" + lineAndColumn(text, offset) + ": " + reason);
    };

    Guard guard;
    try {
        return Json::parse(CountingIterator(position), CountingIterator(end), std::ref(guard));
    } catch (const Json::parse_error& error) {
        throw fail("expected JSON in UTF-8: " + objection(error.what()));
    } catch (const Json::out_of_range&) {
        throw fail("expected a finite number");
    } catch (const InputError& error) {
        throw fail(error.what());
    }
}
