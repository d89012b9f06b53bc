#pragma once

#include <QString>

namespace firecheck {

/// From now on people are told everything in this language, "en" or "zh_CN". Throws InputError for another.
void useLanguage(const QString& name);

/// "en" until another one is used.
QString currentLanguage();

} // namespace firecheck
