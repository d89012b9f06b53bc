#include "InputError.h"
#include "drawing/dxf/DxfEncoding.h"
#include "drawing/dxf/dxf_text.h"

#include <gtest/gtest.h>

using namespace firecheck;

namespace {

TEST(DxfText, ShowsWhatItsCodesMean) {
    const struct {
        std::string (*shown)(const std::string&);
        std::string raw;
        std::string expected;
    } rows[] = {
        {withoutEscapes, R"(\U+5B8B\U+4f53 \U+12)", R"(宋体 \U+12)"},
        {withoutEscapes, R"(\U+D83D\U+DE00)", "😀"},
        {withoutEscapes, R"(\M+5CBCE \M+1925C \M+0CBCE)", "宋 箪 \\M+0CBCE"},
        {shownText, " %%uGate%%u %%c200 %%p5 45%%d 100%% %%%", "Gate ⌀200 ±5 45° 100%% %"},
        {shownParagraphs, R"({\fSimSun|b0|i0;\H700;3\~floors\P\C1;\LOffice\l} \S1^2; a\\b \{c\})",
         "3 floors Office 1/2 a\\b {c}"},
        {shownParagraphs, R"(\pxqc;one^Jtwo\)", "one two\\"},
        {shownParagraphs, R"(\Hunfinished)", "Hunfinished"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.shown(row.raw), row.expected) << row.raw;
}

TEST(DxfEncoding, BelievesTheBytesBeforeTheHeader) {
    const std::string gbk = "0\nSECTION\n\xCB\xDE\xC9\xE1 1\n";
    const std::string utf8 = "0\nSECTION\n宿舍 1\n";
    const struct {
        std::string bytes, version, codePage, expected;
        bool isDoubtful;
    } rows[] = {
        {gbk, "AC1009", "ANSI_936", utf8, false},
        {gbk, "AC1009", "gb2312", utf8, true},
        {gbk, "AC1015", "ANSI_1252", utf8, true},
        {gbk, "AC1015", "", utf8, true},
        {gbk, "AC1032", "ANSI_936", utf8, true},
        {utf8, "AC1021", "ANSI_936", utf8, false},
        {utf8, "AC1015", "ANSI_936", utf8, true},
        {utf8, "AC1009", "", utf8, true},
        {"B\xFCro", "AC1015", "ANSI_1252", "Büro", false},
        {"\xC1\xE5\xF1\xEE\xED", "AC1015", "ANSI_1251", "Бесон", false},
        {"\xA7\x41", "AC1015", "ANSI_950", "你", false},
        {"\xFF\xFE\xFF", "AC1015", "ANSI_936", "\uFFFD\uFFFD\uFFFD", true},
        {"宿舍 食堂 \xE6\xB3\xA8\xE9\x87X", "AC1032", "", "宿舍 食堂 注\uFFFD\uFFFDX", true},
        {"宿舍 食堂 \xE9\x87X", "AC1015", "unheard", "宿舍 食堂 \uFFFD\uFFFDX", true},
        {"plain", "AC1009", "unheard", "plain", false},
    };
    for (const auto& row : rows) {
        const DxfEncoding encoding = DxfEncoding::ofFile(row.bytes, row.version, row.codePage);
        EXPECT_EQ(encoding.decoded(row.bytes), row.expected) << row.version << " " << row.codePage;
        EXPECT_EQ(!encoding.doubt().empty(), row.isDoubtful) << row.version << " " << row.codePage;
    }
    EXPECT_EQ(DxfEncoding::named("gbk").decoded(gbk), utf8);
    for (const char* const name : {"", "klingon", "UTF-16", "UTF-8//IGNORE"})
        EXPECT_THROW(DxfEncoding::named(name), InputError) << name;
}

} // namespace
