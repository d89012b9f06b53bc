#pragma once

#include "case_file/CaseFile.h"

#include <string>
#include <vector>

namespace firecheck {

struct NamedCaseFile {
    std::string name; ///< of the file, without directory and suffix
    CaseFile content;
};

/// Every case file ("*.json") of a directory, in the order of their names. Throws InputError when there is
/// none, and for a wrong one.
std::vector<NamedCaseFile> readCaseFiles(const std::string& directory);

} // namespace firecheck
