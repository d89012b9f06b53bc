#pragma once

#include "case_file/case_directory.h"

#include <string>
#include <vector>

namespace firecheck {

struct PageFile {
    std::string name; ///< relative to the directory of the page
    std::string content;
};

/// The case files as a page for people: "rules.md", then its plans, "rules/NAME.svg" and, where a case finds
/// an element, "rules/NAME-found.svg". The same files always give the same page.
std::vector<PageFile> rulesPage(const std::vector<NamedCaseFile>& files);

} // namespace firecheck
