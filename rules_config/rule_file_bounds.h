#pragma once

#include <QByteArray>

namespace firestandard {

/// Rule files up to this many bytes are read. Their document takes some fifty times as much memory.
inline constexpr qint64 kLargestRuleFile = 64 * 1024 * 1024;

/// Whether the text of a rule file can be parsed, and its document destroyed, without exhausting the process:
/// the parser and the document recurse for each level of nesting, of elements as of groups in an element
/// declaration, and entities multiply. Those of the document type itself, parameter entities, must not refer
/// to others at all. A text that is not well-formed is measured as far as the parser gets.
bool isWithinBounds(const QByteArray& ruleFile);

} // namespace firestandard
