#include "text/nearest_name.h"

#include <QString>
#include <QVector>

#include <algorithm>

namespace firecheck {

namespace {

using Letters = QVector<uint>; ///< a Chinese character is one, as a Latin letter is

Letters letters(const std::string& text) {
    return QString::fromStdString(text).toLower().toUcs4();
}

/// Letters inserted, dropped, replaced, or swapped with their neighbour.
int editDistance(const Letters& a, const Letters& b) {
    const int aSize = int(a.size());
    const int bSize = int(b.size());
    std::vector<std::vector<int>> edits(std::size_t(aSize) + 1, std::vector<int>(std::size_t(bSize) + 1));
    for (int i = 0; i <= aSize; ++i)
        edits[i][0] = i;
    for (int j = 0; j <= bSize; ++j)
        edits[0][j] = j;
    for (int i = 1; i <= aSize; ++i) {
        for (int j = 1; j <= bSize; ++j) {
            const int replaced = edits[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            edits[i][j] = std::min({replaced, edits[i - 1][j] + 1, edits[i][j - 1] + 1});
            const bool swaps = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swaps)
                edits[i][j] = std::min(edits[i][j], edits[i - 2][j - 2] + 1);
        }
    }
    return edits[aSize][bSize];
}

} // namespace

std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& candidates) {
    constexpr std::size_t longestName = 80;
    if (name.size() > longestName)
        return std::nullopt;
    const Letters wanted = letters(name);
    std::optional<std::string> nearest;
    int fewestEdits = std::max(int(wanted.size()) / 4, 1) + 1;
    for (const std::string& candidate : candidates) {
        const int edits = editDistance(wanted, letters(candidate));
        if (edits < fewestEdits) {
            fewestEdits = edits;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace firecheck
