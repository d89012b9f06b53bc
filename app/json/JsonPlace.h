#pragma once

#include "InputError.h"

#include <string>
#include <vector>

namespace firecheck {

/// What is wrong with a JSON text, and where.
struct Refusal {
    std::string pointer; ///< a JSON pointer; empty for the whole text
    std::string reason;
    std::string suggestion; ///< what was probably meant; empty when nothing is near

    /// "/objects/3/use: expected ...; did you mean "office"?"
    std::string text() const;
};

/// One refusal, or all those of a text: the message has a line for each.
class RefusedJson : public InputError {
public:
    explicit RefusedJson(std::vector<Refusal> refusals);
    const std::vector<Refusal>& refusals() const { return m_refusals; }

private:
    std::vector<Refusal> m_refusals;
};

/// Where in a JSON text a value stands: a chain of keys and indices, cheap as long as nothing is wrong.
/// Refers to its parent and to the list of refusals, which must outlive it.
class JsonPlace {
public:
    JsonPlace() = default;
    /// The whole of a text of which everything that is wrong is to be told, not only the first of it.
    explicit JsonPlace(std::vector<Refusal>& refusals) : m_refusals(&refusals) {}
    JsonPlace(const JsonPlace& parent, const std::string& key)
        : m_parent(&parent), m_refusals(parent.m_refusals), m_key(&key) {}
    JsonPlace(const JsonPlace& parent, std::string&& key) = delete;
    JsonPlace(const JsonPlace& parent, std::size_t index)
        : m_parent(&parent), m_refusals(parent.m_refusals), m_index(index) {}

    /// As a JSON pointer; empty for the whole text.
    std::string pointer() const;

    /// Takes one step of reading. What it refuses is kept, so that the next steps are taken as well; without
    /// a list of refusals it is thrown on.
    template <class Step> void attempt(Step step) const {
        try {
            step();
        } catch (const RefusedJson& refused) {
            if (!m_refusals)
                throw;
            m_refusals->insert(m_refusals->end(), refused.refusals().begin(), refused.refusals().end());
        }
    }

private:
    const JsonPlace* m_parent = nullptr;
    std::vector<Refusal>* m_refusals = nullptr;
    const std::string* m_key = nullptr;
    std::size_t m_index = 0;
};

/// Throws RefusedJson with this one refusal.
[[noreturn]] void refuse(const JsonPlace& place, const std::string& reason,
                         const std::string& suggestion = {});

} // namespace firecheck
