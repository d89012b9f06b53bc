#pragma once

#include "text/Place.h"

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

struct RuleFileAttribute {
    std::string name;
    std::string value;
    Place place; ///< of its name
};

/// A node of a rule file. Blank text is none, as for the rule store.
struct RuleFileNode {
    enum class Kind { Element, Comment, Text, Instruction };

    Kind kind;
    std::string name; ///< of an element or instruction
    Place place;
    std::vector<RuleFileAttribute> attributes;
    std::vector<RuleFileNode> children;
    std::string text; ///< of an innermost element, such as a rule's description

    /// Nullptr when there is none of that name.
    const RuleFileAttribute* attribute(const std::string& wanted) const;
    /// Empty when there is none, as the rule store reads it.
    std::string value(const std::string& wanted) const;
};

struct RuleFileNodes {
    RuleFileNode root;
    std::optional<Place> wrongBytes; ///< the first bytes that are no characters of the file's encoding
};

/// The document element of a rule file, with as many levels below it as the rule store looks at: groups,
/// rules and their texts. Throws InputError for a file that cannot be read or is not well-formed XML.
RuleFileNodes readRuleFileNodes(const std::string& fileName);

} // namespace firecheck
