#pragma once

#include "json/Json.h"
#include "rules_config/NuxStandardCheckRule.h"

#include <string>
#include <vector>

namespace firecheck {

/// A rule as a case file explains it to people.
struct ExplainedRule {
    NuxStandardCheckRule record;
    std::string pattern; ///< its name before placeholders were replaced
    Json fields;         ///< those of the record that the file gives
    std::string meaning;
    std::string limits; ///< empty for rules without any
    std::vector<std::string> peculiarities;
};

/// One violation that a case expects.
struct ExpectedViolation {
    long long element = 0; ///< 0 when the violation is not about one element
    std::vector<long long> related;
};

/// One rule judged on one site.
struct Case {
    std::string sentence;
    std::string pattern;       ///< the sentence before placeholders were replaced
    Json replaced;             ///< what each placeholder was replaced by
    std::size_t explained = 0; ///< which of the file's rules explains it
    NuxStandardCheckRule rule;
    Json site; ///< as a site file gives it
    std::vector<ExpectedViolation> violations;
    std::string outcome;             ///< what a report says of the rule; empty when the case leaves it open
    bool dependsOnDirection = false; ///< whether another result may be right once the site is turned
};

/// A family of rules, what it means and the cases that show it.
///
/// A file is a JSON object: "title", "about", "reports" (what a violation names), "rules", "site" (the
/// objects of the base site) and "cases". A rule has "name", "meaning", "fields" (the fields of its record)
/// and perhaps "limits" and "peculiarities". A case has "case" (its sentence), "violations" (objects of
/// "element" and "related", in order), the name of its "rule" unless the file has one only, and perhaps
///   "fields"  fields of the rule's record that differ,
///   "add"     further objects, at the end,
///   "set"     by handle, keys of objects that differ; null removes a key,
///   "remove"  handles of objects that are not there,
///   "last"    the handle of the object that comes last,
///   "outcome" what a report says of the rule, "nothing to judge: 1 found, on the ground",
///   "dependsOnDirection"  see above; also for the whole file.
/// Rules and cases with "each", a list of objects, stand for one rule or case for each of these; "{key}" is
/// replaced by the value, and a text that is nothing but "{key}" by the value itself, whatever its type.
struct CaseFile {
    std::string title;
    std::string about;
    std::string reports;
    std::vector<ExplainedRule> rules;
    Json site; ///< the base site, as a site file gives it
    std::vector<Case> cases;
};

/// Reads the text of a case file; `name` stands for the file in errors. Throws InputError for what is no such
/// file, for unknown keys, handles and rules, for a sentence given twice, and for a file without cases.
CaseFile readCaseFile(const std::string& text, const std::string& name);

} // namespace firecheck
