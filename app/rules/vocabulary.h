#pragma once

#include <string>
#include <vector>

namespace firecheck {

/// A rule name that an evaluator knows, explained. Texts are one sentence or two, or empty.
struct RuleName {
    std::string name;
    std::string type;                 ///< of the evaluator that knows it
    std::string elementType;          ///< identifier of the elements that the name is about
    std::string referenceElementType; ///< identifier of what they are judged against; empty for none
    std::vector<std::string> reads;   ///< the attributes that decide its outcome, beside "Type"
    std::string judges;
    std::string limits; ///< those that no attribute changes
    std::string peculiarity;
};

/// The reference types that elements of one type have a distance to (see DistanceRow of the catalogue).
struct DistanceMeasure {
    std::string elementType;
    std::vector<std::string> referenceElementTypes;
    std::string note;
};

/// Every rule name with a meaning of its own: self, distant, position and without, each in a fixed order. A
/// distance rule may have any other name as well, as long as its reference is no open shed.
const std::vector<RuleName>& ruleNames();

/// Nullptr when no evaluator knows the name.
const RuleName* findRuleName(const std::string& name);

/// The four values of the attribute "Type" that select an evaluator.
const std::vector<std::string>& ruleTypes();

/// The attributes that decide the outcome of rules of one type, whatever their names.
std::vector<std::string> attributesRead(const std::string& type);

const std::vector<DistanceMeasure>& distanceMeasures();

/// Nullptr when the type has no measure.
const DistanceMeasure* findDistanceMeasure(const std::string& elementType);

} // namespace firecheck
