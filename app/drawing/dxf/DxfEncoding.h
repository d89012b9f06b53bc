#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace firecheck {

/// How the bytes of a drawing's texts become UTF-8.
class DxfEncoding {
public:
    /// By the name of an encoding as people write it ("GBK", "UTF-8", "CP1252"). Throws InputError for one
    /// that is not known.
    static DxfEncoding named(const std::string& name);

    /// What the header of a drawing says, unless the bytes of the whole file contradict it: then UTF-8, or
    /// GB18030. Less than half of all runs of bytes that are not ASCII may be wrong in what counts as UTF-8.
    /// `codePage` is that of $DWGCODEPAGE, `version` that of $ACADVER; either may be empty.
    static DxfEncoding ofFile(std::string_view bytes, const std::string& version,
                              const std::string& codePage);

    /// Why the choice may be wrong; empty when there is no doubt.
    const std::string& doubt() const { return m_doubt; }

    /// Bytes that stand for nothing become U+FFFD.
    std::string decoded(std::string_view bytes) const;

private:
    explicit DxfEncoding(std::string name) : m_name(std::move(name)) {}

    std::string m_name; ///< as the converter knows it
    std::string m_doubt;
};

/// The character that a code page of Windows (936, 950, ...) has for two bytes, in UTF-8; empty for none.
std::string characterOfCodePage(int codePage, unsigned doubleByte);

} // namespace firecheck
