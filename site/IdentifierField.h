#pragma once

#include <QString>

#include <cwchar>
#include <string>

namespace firestandard {

/// A rule field that holds an element type identifier, ready to be compared with what elements report.
class IdentifierField {
public:
    explicit IdentifierField(const QString& field);

    /// Whether the identifier, turned into a QString by the host, equals the field exactly.
    bool matches(const std::wstring& identifier) const {
        return m_isPlain && !mayBeginWithMark(identifier) ? equalsUpToTerminator(identifier)
                                                          : equalsConverted(identifier);
    }

private:
    // The usual field is compared without a conversion for each element: the identifiers that give such a
    // text equal it up to the terminator, but for a byte order mark in front, which conversion takes off.
    bool equalsUpToTerminator(const std::wstring& identifier) const {
        const std::size_t length = m_wideField.size();
        return identifier.size() >= length && identifier[length] == L'\0' &&
               std::wmemcmp(identifier.data(), m_wideField.data(), length) == 0;
    }
    static bool mayBeginWithMark(const std::wstring& identifier) {
        return static_cast<char32_t>(identifier[0]) >= QChar::ByteOrderMark;
    }
    bool equalsConverted(const std::wstring& identifier) const;

    QString m_field;
    std::wstring m_wideField;
    bool m_isPlain; ///< ASCII, which every host converts alike
};

} // namespace firestandard
