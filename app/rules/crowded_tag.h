#pragma once

#include <QString>

#include <optional>

namespace firecheck {

/// Readers of XML compare the attributes of a tag pair by pair, so that many take long.
inline constexpr int kMostAttributes = 1000;

/// Where the first tag starts in the text of an XML document with more attributes than that. All declarations
/// of a document type count as one tag, since they add up to attributes of the tags that follow. The text
/// need not be well-formed; nothing when there is no such tag.
std::optional<int> crowdedTag(const QString& xml);

} // namespace firecheck
