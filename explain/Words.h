#pragma once

#include <QCoreApplication>
#include <QString>

#include <string>
#include <type_traits>

namespace firestandard {

/// What people read goes through `Words::tr`, whole sentences with placeholders, so that it can be
/// translated. Without a translation it stays the English of the source.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

/// A text as a placeholder takes it: UTF-8, or a whole number.
template <class Text> QString placed(const Text& text) {
    if constexpr (std::is_integral_v<Text>)
        return QString::number(text);
    else if constexpr (std::is_same_v<Text, std::string>)
        return QString::fromStdString(text);
    else
        return text;
}

/// The sentence with all its placeholders filled at once, since a name may hold a "%1" of its own. UTF-8.
template <class... Texts> std::string filled(const QString& sentence, const Texts&... texts) {
    if constexpr (sizeof...(texts) == 0)
        return sentence.toStdString();
    else
        return sentence.arg(placed(texts)...).toStdString();
}

} // namespace firestandard
