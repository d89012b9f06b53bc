#include "report/escape.h"

namespace firecheck {

namespace {

bool isAllowed(QChar character) {
    const ushort code = character.unicode();
    const bool isControl =
        (code < 0x20 && code != '\t' && code != '\n' && code != '\r') || (code >= 0x7f && code < 0xa0);
    const bool turnsText = (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    return !isControl && !turnsText && code < 0xfffe;
}

/// Half of a surrogate pair alone is no character.
bool isWhole(const QString& text, int i) {
    if (text[i].isHighSurrogate())
        return i + 1 < text.size() && text[i + 1].isLowSurrogate();
    if (text[i].isLowSurrogate())
        return i > 0 && text[i - 1].isHighSurrogate();
    return true;
}

} // namespace

QString escaped(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (!isAllowed(character) || !isWhole(text, i))
            result += QChar::ReplacementCharacter;
        else if (character == '&')
            result += "&amp;";
        else if (character == '<')
            result += "&lt;";
        else if (character == '>')
            result += "&gt;";
        else if (character == '"')
            result += "&quot;";
        else if (character == '\'')
            result += "&#39;";
        else
            result += character;
    }
    return result;
}

QString escaped(const std::string& utf8) {
    return escaped(QString::fromStdString(utf8));
}

} // namespace firecheck
