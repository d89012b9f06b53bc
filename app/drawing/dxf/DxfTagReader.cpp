#include "drawing/dxf/DxfTagReader.h"

#include "drawing/dxf/refuse_drawing.h"
#include "text/shortened.h"
#include "text/words.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace firecheck {

namespace {

constexpr int kComment = 999;
constexpr int kGreatestCode = 1071;

std::string_view trimmedText(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

template <class Number> bool parse(std::string_view text, Number& number) {
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

std::string shown(std::string_view value) {
    return shortened(std::string(value.substr(0, 200)));
}

} // namespace

DxfTagReader::DxfTagReader(std::string_view text, std::string fileName)
    : m_text(text), m_fileName(std::move(fileName)) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (m_text.substr(0, byteOrderMark.size()) == byteOrderMark)
        m_position = byteOrderMark.size();
    advance();
}

std::string_view DxfTagReader::nextLine() {
    if (m_position >= m_text.size())
        failAtEnd();
    ++m_line;
    const std::size_t end = std::min(m_text.find_first_of("\r\n", m_position), m_text.size());
    const std::string_view line = m_text.substr(m_position, end - m_position);
    m_position = end + 1;
    if (end + 1 < m_text.size() && m_text[end] == '\r' && m_text[end + 1] == '\n')
        ++m_position;
    return line;
}

void DxfTagReader::advance() {
    do {
        const std::string_view code = trimmedText(nextLine());
        if (code.empty() && m_position >= m_text.size())
            failAtEnd();
        if (!parse(code, m_current.code) || m_current.code < -5 || m_current.code > kGreatestCode)
            fail(m_line, filled(Words::tr("expected a group code of DXF, found \"%1\""), shown(code)));
        m_current.value = nextLine();
        m_current.line = m_line;
    } while (m_current.code == kComment);
}

bool DxfTagReader::isAt(int code, std::string_view value) const {
    return m_current.code == code && trimmed(m_current) == value;
}

std::string_view DxfTagReader::trimmed(const DxfTag& tag) {
    return trimmedText(tag.value);
}

double DxfTagReader::number(const DxfTag& tag) const {
    double result = 0.0;
    if (!parse(trimmed(tag), result) || !std::isfinite(result))
        fail(tag.line, filled(Words::tr("expected a finite number for group %1, found \"%2\""), tag.code,
                              shown(tag.value)));
    return result;
}

int DxfTagReader::integer(const DxfTag& tag) const {
    const double result = number(tag);
    if (result != std::floor(result) || std::abs(result) > std::numeric_limits<int>::max())
        fail(tag.line, filled(Words::tr("expected a whole number for group %1, found \"%2\""), tag.code,
                              shown(tag.value)));
    return static_cast<int>(result);
}

void DxfTagReader::failAtEnd() const {
    fail(m_line + 1, filled(Words::tr("expected the end of the drawing, \"EOF\": the file is cut off here")));
}

void DxfTagReader::fail(int line, const std::string& reason) const {
    refuseDrawing(m_fileName, line, reason);
}

} // namespace firecheck
