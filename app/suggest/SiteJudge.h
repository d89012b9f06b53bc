#pragma once

#include "evaluators/CheckObserver.h"
#include "evaluators/rule_catalogue.h"
#include "explain/judged_rules.h"
#include "json/Json.h"
#include "rules/rule_file.h"
#include "suggest/Offences.h"

#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace firecheck {

/// A value that the engine measured, in the units of CheckObserver.
struct JudgedValue {
    firestandard::Measurement measurement;
    long long other = 0;                          ///< the other element of a distance; 0 for none
    std::optional<firestandard::Contact> contact; ///< nothing where the rule took the distance for granted
};

/// What the engine says of a site.
struct Verdict {
    Offences offences;
    /// Of distances by pair, of boxes the nearest, of areas the largest: what offends, and what was asked
    /// for.
    std::map<Offence, JudgedValue> values;
    /// Elements, by rule, that an extinguisher box rule ended at or before.
    std::set<std::pair<std::size_t, long long>> unreached;
};

/// Has the engine judge sites by the rules in use, which are numbered in the order in which it runs them.
class SiteJudge {
public:
    explicit SiteJudge(const RuleMap& rulesInUse);
    SiteJudge(const SiteJudge&) = delete;
    SiteJudge& operator=(const SiteJudge&) = delete;

    /// Reads the site as the checker does and runs the engine on it. Throws RefusedJson for a value that is
    /// no site. `asked` are offences whose values are told even where they offend no longer.
    Verdict judge(const Json& site, const std::set<Offence>& asked = {}) const;

    const std::vector<NuxStandardCheckRule>& rules() const { return m_rules; }
    std::size_t numberOf(const NuxStandardCheckRule& rule) const { return m_numbers.of(rule); }
    const NuxStandardCheckRule& rule(const Offence& offence) const { return m_rules[offence.rule]; }
    /// Null for a rule whose name no catalogue has.
    const firestandard::RuleRow* row(const Offence& offence) const { return m_rows[offence.rule]; }
    /// What the rule judges, a distance whatever its name is; nothing where no catalogue tells.
    std::optional<firestandard::RuleTest> test(const Offence& offence) const;
    bool isBoxRule(std::size_t rule) const;

    /// The offences that a record of the engine's results stands for.
    std::vector<Offence> offencesOf(const NuxStandardCheckRule& record, const Verdict& verdict) const;

private:
    std::vector<NuxStandardCheckRule> m_rules;
    std::vector<const firestandard::RuleRow*> m_rows;
    firestandard::RuleNumbers m_numbers;
};

} // namespace firecheck
