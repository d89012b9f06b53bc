#pragma once

#include <string>
#include <string_view>

namespace firecheck {

/// A group code and its value: the bytes of its line as they are.
struct DxfTag {
    int code = 0;
    std::string_view value;
    int line = 0; ///< of the value, from 1
};

/// Reads the tagged lines of an ASCII DXF file one by one. The text must outlive it. Whatever is no tag ends
/// the reading with InputError, "FILE:LINE: expected ...".
class DxfTagReader {
public:
    DxfTagReader(std::string_view text, std::string fileName);

    /// The tag at which the reader stands: at first that before which nothing was read. "EOF" is the last.
    const DxfTag& current() const { return m_current; }
    /// Goes on to the next tag; comments are passed over.
    void advance();

    bool isAt(int code, std::string_view value) const;
    bool isAtEntity() const { return m_current.code == 0; }

    /// The value without the blanks around it.
    static std::string_view trimmed(const DxfTag& tag);
    double number(const DxfTag& tag) const;
    /// A whole number; those beyond the range of int are refused.
    int integer(const DxfTag& tag) const;

    [[noreturn]] void fail(int line, const std::string& reason) const;
    const std::string& fileName() const { return m_fileName; }

private:
    std::string_view nextLine();
    [[noreturn]] void failAtEnd() const;

    std::string_view m_text;
    std::string m_fileName;
    std::size_t m_position = 0;
    int m_line = 0;
    DxfTag m_current;
};

} // namespace firecheck
