// Any text as a site file: it is read whole or refused with a reason.

#include "InputError.h"
#include "require.h"
#include "site_file/site_reader.h"

using namespace firecheck;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Site site = parseSite(std::string(reinterpret_cast<const char*>(data), size), "site.json");
        require(site.document != nullptr, "a site has a document");
        require(site.labels.size() == site.document->GetModelSpace()->objects().size(), "a label an object");
    } catch (const InputError& error) {
        require(std::string(error.what()).rfind("site.json", 0) == 0, "the reason names the file");
    }
    return 0;
}
