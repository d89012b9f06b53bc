#include "text/nearest_name.h"

#include <algorithm>
#include <cctype>

namespace firecheck {

namespace {

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// Letters inserted, dropped, replaced, or swapped with their neighbour.
std::size_t editDistance(const std::string& a, const std::string& b) {
    std::vector<std::vector<std::size_t>> edits(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i)
        edits[i][0] = i;
    for (std::size_t j = 0; j <= b.size(); ++j)
        edits[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = edits[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            edits[i][j] = std::min({replaced, edits[i - 1][j] + 1, edits[i][j - 1] + 1});
            const bool swaps = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swaps)
                edits[i][j] = std::min(edits[i][j], edits[i - 2][j - 2] + 1);
        }
    }
    return edits[a.size()][b.size()];
}

} // namespace

std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& candidates) {
    constexpr std::size_t longestName = 80;
    if (name.size() > longestName)
        return std::nullopt;
    const std::string wanted = lowerCase(name);
    std::optional<std::string> nearest;
    std::size_t fewestEdits = std::max<std::size_t>(name.size() / 4, 1) + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t edits = editDistance(wanted, lowerCase(candidate));
        if (edits < fewestEdits) {
            fewestEdits = edits;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace firecheck
