#include "site/IdentifierField.h"
#include "site/element_type_identifiers.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

struct Constant {
    std::wstring_view text;
    const char* name;
};

#define CONSTANT(name) Constant{name, #name},
const std::vector<Constant> kElementFamily{NUX_ELEMENT_FAMILY(CONSTANT)};
const std::vector<Constant> kDrawingObjectFamily{NUX_DRAWING_OBJECT_FAMILY(CONSTANT)};

void expectFamily(const std::vector<Constant>& family, const std::string& prefix, std::size_t count) {
    std::set<std::wstring_view> texts;
    for (const Constant& constant : family) {
        EXPECT_EQ(std::string(constant.text.begin(), constant.text.end()), constant.name);
        EXPECT_EQ(std::string(constant.name).rfind(prefix, 0), 0u) << constant.name;
        texts.insert(constant.text);
    }
    EXPECT_EQ(texts.size(), count);
    EXPECT_EQ(family.size(), count);
}

} // namespace

TEST(Vocabulary, FamiliesAreCompleteAndSpellTheirNames) {
    expectFamily(kElementFamily, "NUX_ELEMENT_TYPE_", 165);
    expectFamily(kDrawingObjectFamily, "NUX_EDO_TYPE_", 96);
}

TEST(IdentifierField, MatchesTheWholeTextAndNothingElse) {
    struct Row {
        QString field;
        std::wstring identifier;
        bool matches;
    };
    const Row rows[] = {
        {"NUX_EDO_TYPE_ROAD", L"NUX_EDO_TYPE_ROAD", true},
        {"NUX_EDO_TYPE_ROAD", L"nux_edo_type_road", false},
        {"NUX_EDO_TYPE_ROAD", L"NUX_EDO_TYPE_ROAD ", false},
        {"NUX_EDO_TYPE_ROAD", L"NUX_EDO_TYPE_ROADS", false},
        {"NUX_EDO_TYPE_ROADS", L"NUX_EDO_TYPE_ROAD", false},
        {"", L"", true},
        {"", L"NUX_EDO_TYPE_ROAD", false},
        {"食堂", L"食堂", true},
        {"食堂", L"食", false},
        {"A" + QString(QChar(0)), std::wstring(L"A\0", 2), false},
        {QString::fromUcs4(U"\U0001F525"), L"\U0001F525", true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(IdentifierField(row.field).matches(row.identifier), row.matches) << row.field.toStdString();
}
