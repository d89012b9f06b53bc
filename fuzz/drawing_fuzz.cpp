// Any text as a drawing: it is read whole or refused with a reason, and what was read can be written and read
// again.

#include "InputError.h"
#include "drawing/drawing_of_site.h"
#include "drawing/dxf/write_dxf.h"
#include "drawing/load_site.h"
#include "require.h"

using namespace firecheck;

namespace {

constexpr std::size_t kMostObjects = 2'000; // of a site that is written again

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SiteFile file;
    try {
        file = parseDrawing(std::string(reinterpret_cast<const char*>(data), size), "plan.dxf");
    } catch (const InputError& error) {
        require(std::string(error.what()).rfind("plan.dxf", 0) == 0, "the reason names the file");
        return 0;
    }
    require(file.drawing->origins.size() == file.value["objects"].size(), "a place in the drawing an object");
    if (file.value["objects"].size() > kMostObjects)
        return 0;
    std::string text;
    try {
        text = writeDxf(drawingOfSite(file.value, nullptr));
    } catch (const InputError&) {
        return 0; // more than a drawing can keep
    }
    const SiteFile again = parseDrawing(text, "again.dxf");
    require(nlohmann::json::parse(again.value.dump()) == nlohmann::json::parse(file.value.dump()),
            "a site reads back equal");
    return 0;
}
