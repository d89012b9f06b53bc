#include "text/nearest_name.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace {

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// Levenshtein distance, one row of the table at a time.
std::size_t editDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t substituted = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({substituted, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& candidates) {
    constexpr std::size_t longestName = 80;
    if (name.size() > longestName)
        return std::nullopt;
    const std::string wanted = lowerCase(name);
    std::optional<std::string> nearest;
    std::size_t fewestEdits = name.size() / 3 + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t edits = editDistance(wanted, lowerCase(candidate));
        if (edits < fewestEdits) {
            fewestEdits = edits;
            nearest = candidate;
        }
    }
    return nearest;
}
