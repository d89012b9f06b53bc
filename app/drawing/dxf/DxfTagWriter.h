#pragma once

#include <cstdint>
#include <string>

namespace firecheck {

/// Appends group codes and values to the text of a DXF file.
class DxfTagWriter {
public:
    void tag(int code, const std::string& ascii);
    void tag(int code, const char* ascii) { tag(code, std::string(ascii)); }
    void integer(int code, long long value);
    void number(int code, double value);
    void handle(int code, std::uint64_t handle);
    /// A text in UTF-8; what would end its line becomes a blank.
    void text(int code, const std::string& utf8);
    /// x, y and a height of 0, under `code` and the codes 10 and 20 above it.
    void point(int code, double x, double y);

    std::string take() { return std::move(m_text); }

private:
    std::string m_text;
};

} // namespace firecheck
