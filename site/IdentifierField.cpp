#include "site/IdentifierField.h"

#include "base/WcharArrayToQString.h"

#include <algorithm>

namespace firestandard {

IdentifierField::IdentifierField(const QString& field)
    : m_field(field), m_wideField(field.toStdWString()),
      m_isPlain(std::none_of(field.cbegin(), field.cend(),
                             [](QChar c) { return c.isNull() || c.unicode() >= 0x80; })) {}

bool IdentifierField::equalsConverted(const std::wstring& identifier) const {
    return WcharArrayToQString(identifier.c_str()) == m_field;
}

} // namespace firestandard
