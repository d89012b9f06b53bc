#include "drawing/dxf/dxf_text.h"

#include "drawing/dxf/DxfEncoding.h"

#include <QString>

#include <optional>

namespace firecheck {

namespace {

/// The number that `digits` hexadecimal digits stand for; nothing where there are fewer.
std::optional<unsigned> hexadecimal(const std::string& text, std::size_t at, std::size_t digits) {
    if (at + digits > text.size())
        return std::nullopt;
    unsigned value = 0;
    for (std::size_t i = at; i < at + digits; ++i) {
        const char c = text[i];
        const int digit = c >= '0' && c <= '9'   ? c - '0'
                          : c >= 'A' && c <= 'F' ? c - 'A' + 10
                          : c >= 'a' && c <= 'f' ? c - 'a' + 10
                                                 : -1;
        if (digit < 0)
            return std::nullopt;
        value = value * 16 + unsigned(digit);
    }
    return value;
}

int codePageOfDigit(char digit) {
    switch (digit) {
    case '1':
        return 932;
    case '2':
        return 950;
    case '3':
        return 949;
    case '4':
        return 1361;
    case '5':
        return 936;
    default:
        return 0;
    }
}

/// Takes the formatting code of an MTEXT that starts at `at`, after its backslash, and answers what it shows.
QString takeCode(const QString& raw, int& at) {
    const QChar code = raw[at++];
    switch (code.unicode()) {
    case '\\':
    case '{':
    case '}':
        return code;
    case 'P':
    case 'N':
    case 'X':
    case '~':
        return QStringLiteral(" ");
    case 'L':
    case 'l':
    case 'O':
    case 'o':
    case 'K':
    case 'k':
        return {};
    default:
        break;
    }
    const int end = raw.indexOf(';', at);
    if (end < 0 || !QStringLiteral("ACcFfHQSTWp").contains(code))
        return code;
    QString argument = raw.mid(at, end - at);
    at = end + 1;
    return code == 'S' ? argument.replace('^', '/').replace('#', '/') : QString();
}

QString simplified(const QString& text) {
    return text.simplified();
}

} // namespace

std::string withoutEscapes(const std::string& utf8) {
    if (utf8.find("\\U+") == std::string::npos && utf8.find("\\M+") == std::string::npos)
        return utf8;
    QString text; // in UTF-16, where two escapes may make one character
    std::string plain;
    const auto flush = [&] {
        text += QString::fromStdString(plain);
        plain.clear();
    };
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (utf8.compare(i, 3, "\\U+") == 0)
            if (const auto code = hexadecimal(utf8, i + 3, 4); code && *code != 0) {
                flush();
                text += QChar(static_cast<ushort>(*code));
                i += 6;
                continue;
            }
        if (utf8.compare(i, 3, "\\M+") == 0 && i + 3 < utf8.size())
            if (const auto code = hexadecimal(utf8, i + 4, 4)) {
                const std::string character = characterOfCodePage(codePageOfDigit(utf8[i + 3]), *code);
                if (!character.empty()) {
                    plain += character;
                    i += 7;
                    continue;
                }
            }
        plain += utf8[i];
    }
    flush();
    return text.toStdString();
}

std::string shownText(const std::string& raw) {
    const QString text = QString::fromStdString(raw);
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        if (text.mid(i, 2) != "%%" || i + 2 >= text.size()) {
            shown += text[i];
            continue;
        }
        const QChar code = text[i + 2].toLower();
        bool isNumber = false;
        const int number = text.mid(i + 2, 3).toInt(&isNumber);
        if (code == 'c')
            shown += QChar(0x2300);
        else if (code == 'd')
            shown += QChar(0xB0);
        else if (code == 'p')
            shown += QChar(0xB1);
        else if (code == '%')
            shown += '%';
        else if (isNumber && number > 31 && number < 256) {
            shown += QChar(static_cast<ushort>(number));
            i += 2;
        } else if (code != 'u' && code != 'o' && code != 'k') {
            shown += text[i];
            continue;
        }
        i += 2;
    }
    return simplified(shown).toStdString();
}

std::string shownParagraphs(const std::string& raw) {
    QString text = QString::fromStdString(raw);
    text.replace("^J", " ").replace("^I", " ");
    QString shown;
    for (int i = 0; i < text.size();) {
        const QChar c = text[i++];
        if (c == '\\' && i < text.size())
            shown += takeCode(text, i);
        else if (c != '{' && c != '}')
            shown += c;
    }
    return shownText(simplified(shown).toStdString());
}

} // namespace firecheck
