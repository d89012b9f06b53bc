#include "json/parse_json.h"

#include "InputError.h"
#include "json/json_places.h"
#include "text/shortened.h"
#include "text/words.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <vector>

namespace firecheck {

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
    const Place place = placeAt(text, offset);
    return std::to_string(place.line) + ":" + std::to_string(place.column);
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

/// Watches what the parser meets for what JSON as such allows. A pass of its own: a callback of the parser
/// that builds values would make it look at all earlier siblings of every object.
class Guard : public nlohmann::json_sax<Json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override {
        m_keys.emplace_back();
        return descend();
    }
    bool key(string_t& key) override {
        if (!m_keys.back().insert(key).second)
            throw InputError(filled(Words::tr("the key \"%1\" occurs twice in its object"), shortened(key)));
        if (m_keys.back().size() > kMostKeys)
            throw InputError(filled(Words::tr("an object with more than %1 keys"), kMostKeys));
        return true;
    }
    bool end_object() override {
        m_keys.pop_back();
        return ascend();
    }
    bool start_array(std::size_t) override { return descend(); }
    bool end_array() override { return ascend(); }
    bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
        if (dynamic_cast<const Json::out_of_range*>(&error))
            throw InputError(filled(Words::tr("expected a finite number")));
        throw InputError(filled(Words::tr("expected JSON in UTF-8: %1"), objection(error.what())));
    }

private:
    bool descend() {
        if (++m_depth > kDeepestNesting)
            throw InputError(filled(Words::tr("nested deeper than %1 levels"), kDeepestNesting));
        return true;
    }
    bool ascend() {
        --m_depth;
        return true;
    }

    int m_depth = 0;
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

    // The parser takes it for the end.
    const auto nul = text.find('\0');
    if (nul != std::string::npos) {
        position += nul + 1;
        throw fail(filled(Words::tr("expected JSON in UTF-8: found a NUL byte, as texts in UTF-16 have")));
    }
    Guard guard;
    try {
        Json::sax_parse(CountingIterator(position), CountingIterator(end), &guard);
    } catch (const InputError& error) {
        throw fail(error.what());
    }
    return Json::parse(text);
}

} // namespace firecheck
