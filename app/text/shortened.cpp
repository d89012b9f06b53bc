#include "text/shortened.h"

#include "text/printable.h"

namespace firecheck {

std::string shortened(const std::string& whole) {
    constexpr std::size_t longest = 80;
    const std::string text = printable(whole.substr(0, 4 * longest));
    if (text.size() <= longest)
        return text;
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end) + "...";
}

} // namespace firecheck
