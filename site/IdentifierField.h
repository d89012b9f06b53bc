#pragma once

#include <QString>

#include <cwchar>
#include <string>

/// A rule field that holds an element type identifier, ready to be compared with what elements report.
class IdentifierField {
public:
    explicit IdentifierField(const QString& field);

    /// Whether the identifier, turned into a QString by the host, equals the field exactly.
    bool matches(const std::wstring& identifier) const {
        return m_isPlain ? equalsUpToTerminator(identifier) : equalsConverted(identifier);
    }

private:
    // Two wide strings give the same text without surrogates only when they are equal up to the terminator,
    // so the usual field is compared without a conversion for each element.
    bool equalsUpToTerminator(const std::wstring& identifier) const {
        const std::size_t length = m_wideField.size();
        return identifier.size() >= length && identifier[length] == L'\0' &&
               std::wmemcmp(identifier.data(), m_wideField.data(), length) == 0;
    }
    bool equalsConverted(const std::wstring& identifier) const;

    QString m_field;
    std::wstring m_wideField;
    bool m_isPlain; ///< neither surrogates nor terminators
};
