#pragma once

#include <QString>

namespace firecheck {

/// Numbers of things, as phrases: "1 violation", "3 violations".
QString violationsText(std::size_t count);
QString furtherText(std::size_t count); ///< "994 more violations of the same rule by the same element"
QString rulesText(std::size_t count);
QString objectsText(std::size_t count);
QString acceptedText(std::size_t count);
QString unjudgedElementsText(std::size_t count);
QString leftOutRulesText(std::size_t count);

} // namespace firecheck
