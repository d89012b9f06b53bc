#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// The content of a file of the source tree.
inline std::string sourceText(const std::string& fileName) {
    std::ifstream stream(SOURCE_DIRECTORY "/" + fileName, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
