#include "drawing/dxf/DxfEncoding.h"

#include "InputError.h"
#include "text/shortened.h"
#include "text/words.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace firecheck {

namespace {

const char* const kUtf8 = "UTF-8";
const char* const kChinese = "GB18030";
const char* const kWestern = "CP1252";
const char* const kNoCharacter = "\uFFFD";

/// One conversion to UTF-8.
class Converter {
public:
    explicit Converter(const std::string& from) : m_handle(iconv_open(kUtf8, from.c_str())) {}
    ~Converter() {
        if (isKnown())
            iconv_close(m_handle);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isKnown() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

    /// `onWrong` is asked at each byte that stands for nothing whether to go on.
    template <class OnText, class OnWrong>
    void convert(std::string_view bytes, OnText onText, OnWrong onWrong) {
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        char* in = const_cast<char*>(bytes.data()); // the interface lacks a const; it only reads
        std::size_t left = bytes.size();
        char buffer[4096];
        while (left > 0) {
            char* out = buffer;
            std::size_t room = sizeof buffer;
            const auto result = iconv(m_handle, &in, &left, &out, &room);
            onText(std::string_view(buffer, sizeof buffer - room));
            if (result != static_cast<std::size_t>(-1) || errno == E2BIG)
                continue;
            if (!onWrong())
                return;
            ++in;
            --left;
        }
    }

private:
    iconv_t m_handle;
};

/// One converter for each encoding, kept.
Converter& converterFrom(const std::string& name) {
    thread_local std::map<std::string, std::unique_ptr<Converter>> converters;
    auto& converter = converters[name];
    if (!converter)
        converter = std::make_unique<Converter>(name);
    return *converter;
}

bool isAscii(std::string_view bytes) {
    return std::none_of(bytes.begin(), bytes.end(),
                        [](char c) { return (static_cast<unsigned char>(c) & 0x80) != 0; });
}

bool isValid(std::string_view bytes, const std::string& encoding) {
    bool isRight = true;
    converterFrom(encoding).convert(
        bytes, [](std::string_view) {},
        [&isRight] {
            isRight = false;
            return false;
        });
    return isRight;
}

/// Calls `visit` for each run of bytes that are not ASCII.
template <class Visit> void everyRun(std::string_view bytes, Visit visit) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (isAscii(bytes.substr(i, 1)))
            continue;
        std::size_t end = i;
        while (end < bytes.size() && !isAscii(bytes.substr(end, 1)))
            ++end;
        visit(bytes.substr(i, end - i));
        i = end;
    }
}

/// Chinese characters in UTF-8 take three bytes, which a code page hardly has by chance.
bool hasThreeByteCharacters(std::string_view bytes) {
    bool found = false;
    everyRun(bytes, [&found](std::string_view run) {
        found = found || std::any_of(run.begin(), run.end(),
                                     [](char c) { return (static_cast<unsigned char>(c) & 0xF0) == 0xE0; });
    });
    return found;
}

/// Programs cut texts within a character. The rest of such a drawing is UTF-8 all the same.
bool isMostlyUtf8(std::string_view bytes) {
    std::size_t valid = 0;
    std::size_t all = 0;
    everyRun(bytes, [&](std::string_view run) {
        ++all;
        valid += isValid(run, kUtf8) ? 1 : 0;
    });
    return 2 * valid > all;
}

/// Whether all that is not ASCII comes in pairs of bytes as GB 2312 has them. Letters of European languages
/// stand alone between ASCII letters.
bool looksChinese(std::string_view bytes) {
    bool allPairs = true;
    bool any = false;
    everyRun(bytes, [&](std::string_view run) {
        any = true;
        allPairs = allPairs && run.size() % 2 == 0 && std::all_of(run.begin(), run.end(), [](char c) {
                       return static_cast<unsigned char>(c) >= 0xA1 && static_cast<unsigned char>(c) != 0xFF;
                   });
    });
    return any && allPairs;
}

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c); });
    return text;
}

/// The converter's name for the code page of a header: "ANSI_936" and "dos437" are written so. Nothing for
/// one that is not known.
std::optional<std::string> encodingOfCodePage(const std::string& codePage) {
    const std::string name = upper(codePage);
    if (name.empty())
        return kWestern;
    if (name == "UTF-8" || name == "UTF8" || name == "ANSI_65001")
        return kUtf8;
    const auto digits = name.find_first_of("0123456789");
    if (digits == std::string::npos || name.find_first_not_of("0123456789", digits) != std::string::npos)
        return std::nullopt;
    const std::string number = name.substr(digits);
    std::string encoding = number == "936" || number == "54936" ? kChinese
                           : number == "950"                    ? "BIG5-HKSCS"
                           : name.rfind("ISO8859", 0) == 0      ? "ISO-8859-1"
                                                                : "CP" + number;
    return converterFrom(encoding).isKnown() ? std::optional(encoding) : std::nullopt;
}

bool isManyByte(const std::string& encoding) {
    static const std::vector<std::string> names = {kChinese, "BIG5-HKSCS", "CP932", "CP949", "CP1361"};
    return std::find(names.begin(), names.end(), encoding) != names.end();
}

bool isUtf8Version(const std::string& version) {
    return version.size() == 6 && upper(version) >= "AC1021";
}

/// The encoding that the bytes are in rather than in the one that the header says; nothing when that will do.
std::optional<std::string> betterEncoding(std::string_view bytes, const std::optional<std::string>& said) {
    if (said && *said == kUtf8)
        return isMostlyUtf8(bytes) ? std::nullopt : std::optional<std::string>(kChinese);
    if (!said || !isValid(bytes, *said))
        return isMostlyUtf8(bytes) ? kUtf8 : kChinese;
    if (hasThreeByteCharacters(bytes) && isValid(bytes, kUtf8))
        return kUtf8;
    if (!isManyByte(*said) && looksChinese(bytes))
        return kChinese;
    return std::nullopt;
}

} // namespace

DxfEncoding DxfEncoding::named(const std::string& name) {
    // Bytes below 128 must stand for ASCII, or there would be no tags.
    if (name.empty() || name.find('/') != std::string::npos || !converterFrom(name).isKnown() ||
        !isValid("0 SECTION", name) || DxfEncoding(name).decoded("0 SECTION") != "0 SECTION")
        throw InputError("No such encoding of texts: \"" + shortened(name) +
                         "\". Try GB18030, UTF-8 or CP1252.");
    return DxfEncoding(name);
}

DxfEncoding DxfEncoding::ofFile(std::string_view bytes, const std::string& version,
                                const std::string& codePage) {
    const auto said =
        isUtf8Version(version) ? std::optional<std::string>(kUtf8) : encodingOfCodePage(codePage);
    if (isAscii(bytes))
        return DxfEncoding(said.value_or(kUtf8));
    const auto better = betterEncoding(bytes, said);
    DxfEncoding encoding(better.value_or(said.value_or(kUtf8)));
    if (!better) {
        if (!isValid(bytes, encoding.m_name))
            encoding.m_doubt =
                filled(Words::tr("not all bytes of the drawing's texts are %1, as it says; those that are "
                                 "not became \"%2\"; --encoding decides"),
                       encoding.m_name, kNoCharacter);
        return encoding;
    }
    const std::string saidName = isUtf8Version(version) ? kUtf8 : shortened(codePage);
    encoding.m_doubt =
        (saidName.empty()
             ? filled(Words::tr("the drawing does not say how its texts are encoded; they were read as %1; "
                                "--encoding decides"),
                      *better)
             : filled(Words::tr("the drawing says that its texts are %1, which they are not; they were read "
                                "as %2; --encoding decides"),
                      saidName, *better));
    return encoding;
}

std::string DxfEncoding::decoded(std::string_view bytes) const {
    if (isAscii(bytes))
        return std::string(bytes);
    std::string text;
    converterFrom(m_name).convert(
        bytes, [&text](std::string_view piece) { text.append(piece); },
        [&text] {
            text += kNoCharacter;
            return true;
        });
    return text;
}

std::string characterOfCodePage(int codePage, unsigned doubleByte) {
    const std::string name = codePage == 936   ? kChinese
                             : codePage == 950 ? "BIG5-HKSCS"
                                               : "CP" + std::to_string(codePage);
    const std::string bytes{static_cast<char>(doubleByte >> 8), static_cast<char>(doubleByte & 0xFF)};
    Converter& converter = converterFrom(name);
    if (!converter.isKnown() || !isValid(bytes, name))
        return {};
    return DxfEncoding::named(name).decoded(bytes);
}

} // namespace firecheck
