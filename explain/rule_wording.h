#pragma once

namespace firestandard {

/// What people are told of a rule name, beside the facts of the catalogue. "{use}" stands for the use that
/// the name asks for, "{limit}" and "{floors}" for its first and second fixed limit.
struct RuleWording {
    const char* name;
    const char* judges;      ///< what the rule judges, one sentence
    const char* limits;      ///< those that no attribute changes, one sentence; empty for none
    const char* peculiarity; ///< one sentence or two; empty for none
    const char* note = "";   ///< what else there is to know wherever the rule has been judged; mostly empty
};

/// Null for a name without a row; every name of the catalogue has one.
const RuleWording* findRuleWording(const char* name);

} // namespace firestandard
