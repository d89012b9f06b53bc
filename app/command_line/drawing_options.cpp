#include "command_line/drawing_options.h"

#include "command_line/commands.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

DrawingOptions drawingOptions(const Options& options) {
    DrawingOptions result;
    if (const auto layers = options.value("layers"))
        result.layers = LayerMap::load(layers->toStdString());
    if (const auto encoding = options.value("encoding"))
        result.encoding = encoding->toStdString();
    return result;
}

void tellDoubtsOfDrawing(const SiteFile& file, const std::string& fileName) {
    constexpr std::size_t most = 20;
    if (!file.drawing)
        return;
    const auto& doubts = file.drawing->doubts;
    for (std::size_t i = 0; i < std::min(most, doubts.size()); ++i) {
        const DrawingDoubt& doubt = doubts[i];
        complain(fileName + ":" + std::to_string(doubt.line) + ": " +
                 (doubt.suggestion.empty()
                      ? doubt.message
                      : filled(Words::tr("%1; did you mean \"%2\"?"), doubt.message, doubt.suggestion)));
    }
    if (doubts.size() > most) {
        const auto left = static_cast<int>(doubts.size() - most);
        complain(fileName + ": " +
                 filled(left == 1 ? Words::tr("1 further doubt, see \"firecheck lint-site\"")
                                  : Words::tr("%n further doubts, see \"firecheck lint-site\"", "", left)));
    }
}

} // namespace firecheck
