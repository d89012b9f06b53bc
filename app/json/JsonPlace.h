#pragma once

#include <string>

namespace firecheck {

/// Where in a JSON text a value stands: a chain of keys and indices, cheap as long as nothing is wrong.
/// Refers to its parent, which must outlive it.
class JsonPlace {
public:
    JsonPlace() = default;
    JsonPlace(const JsonPlace& parent, const std::string& key) : m_parent(&parent), m_key(&key) {}
    JsonPlace(const JsonPlace& parent, std::string&& key) = delete;
    JsonPlace(const JsonPlace& parent, std::size_t index) : m_parent(&parent), m_index(index) {}

    /// As a JSON pointer; empty for the whole text.
    std::string pointer() const;

private:
    const JsonPlace* m_parent = nullptr;
    const std::string* m_key = nullptr;
    std::size_t m_index = 0;
};

/// Throws InputError: the place, then what is wrong there.
[[noreturn]] void refuse(const JsonPlace& place, const std::string& reason);

} // namespace firecheck
