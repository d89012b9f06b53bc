#include "drawing/dxf/DxfTagWriter.h"

#include <QString>

#include <charconv>

namespace firecheck {

void DxfTagWriter::tag(int code, const std::string& ascii) {
    m_text += std::to_string(code) + "\n" + ascii + "\n";
}

void DxfTagWriter::integer(int code, long long value) {
    tag(code, std::to_string(value));
}

void DxfTagWriter::number(int code, double value) {
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value).ptr; // just what reads back as the same
    std::string digits(buffer, end);
    if (digits.find_first_of(".e") == std::string::npos)
        digits += ".0";
    tag(code, digits);
}

void DxfTagWriter::handle(int code, std::uint64_t handle) {
    char buffer[20];
    char* const end = std::to_chars(buffer, buffer + sizeof buffer, handle, 16).ptr;
    for (char* digit = buffer; digit != end; ++digit)
        *digit = static_cast<char>(*digit >= 'a' ? *digit - 'a' + 'A' : *digit);
    tag(code, std::string(buffer, end));
}

void DxfTagWriter::text(int code, const std::string& utf8) {
    QString line = QString::fromStdString(utf8);
    for (QChar& unit : line)
        if (unit.unicode() < 32 || unit.unicode() == 127)
            unit = ' ';
    tag(code, line.toStdString());
}

void DxfTagWriter::point(int code, double x, double y) {
    number(code, x);
    number(code + 10, y);
    number(code + 20, 0.0);
}

} // namespace firecheck
