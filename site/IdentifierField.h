#pragma once

#include <QString>

#include <string>

/// A rule field that holds an element type identifier, ready to be compared with what elements report.
class IdentifierField {
public:
    explicit IdentifierField(const QString& field);

    /// Whether the identifier, turned into a QString by the host, equals the field exactly.
    bool matches(const std::wstring& identifier) const;

private:
    QString m_field;
    std::wstring m_wideField;
    bool m_isAscii;
};
