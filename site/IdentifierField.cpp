#include "site/IdentifierField.h"

#include "base/WcharArrayToQString.h"

#include <algorithm>
#include <cwchar>

IdentifierField::IdentifierField(const QString& field)
    : m_field(field), m_wideField(field.toStdWString()),
      m_isAscii(std::all_of(field.cbegin(), field.cend(),
                            [](QChar c) { return c > QChar(0) && c < QChar(128); })) {}

// Two wide strings give the same ASCII text only when they are equal up to the terminator, so the usual field
// is compared without a conversion for each element.
bool IdentifierField::matches(const std::wstring& identifier) const {
    if (m_isAscii)
        return std::wcscmp(identifier.c_str(), m_wideField.c_str()) == 0;
    return WcharArrayToQString(identifier.c_str()) == m_field;
}
