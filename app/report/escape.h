#pragma once

#include <QString>

#include <string>

namespace firecheck {

/// `utf8` as the text or a double-quoted attribute value of HTML and XML. Characters that no XML may hold
/// become U+FFFD, so that a name can neither end its element nor spoil the document.
QString escaped(const std::string& utf8);
QString escaped(const QString& text);

} // namespace firecheck
