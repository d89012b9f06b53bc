#pragma once

#include "case_file/CaseFile.h"

#include <string>
#include <vector>

namespace firecheck {

/// A line of the table of cases: those that say the same sentence but for what stands in its placeholders,
/// and that find the same.
struct CaseRow {
    std::string situation; ///< Markdown: the sentence, and the values of its placeholders where they differ
    std::vector<std::string> ruleNames; ///< of the rules judged, each once
    std::string found;                  ///< "nothing", or the handles that the violations name;
                                        ///< then the reported outcome, where the case gives one
};

/// The cases that the rules from `firstRule` to before `endRule` explain, in the order of the file.
std::vector<CaseRow> caseRows(const CaseFile& file, std::size_t firstRule, std::size_t endRule);

} // namespace firecheck
