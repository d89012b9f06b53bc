#pragma once

#include <QString>

namespace firecheck {

/// An element of the page, content and attributes as markup.
QString element(const char* name, const QString& attributes, const QString& content);

QString ofClass(const QString& classes);

/// `text` beginning with a capital letter and ending with a full stop, as markup.
QString asSentence(const std::string& text);

} // namespace firecheck
