#include "site/IdentifierField.h"
#include "site/element_type_identifiers.h"

#include <QCryptographicHash>
#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace firestandard;

namespace {

#define TEXT(name) std::wstring(name),
const std::vector<std::wstring> kElementFamily{NUX_ELEMENT_FAMILY(TEXT)};
const std::vector<std::wstring> kDrawingObjectFamily{NUX_DRAWING_OBJECT_FAMILY(TEXT)};

} // namespace

TEST(Vocabulary, FamiliesAreCompleteAndOfTheirPrefix) {
    EXPECT_EQ(kElementFamily.size(), 165u);
    EXPECT_THAT(kElementFamily, testing::Each(testing::StartsWith(L"NUX_ELEMENT_TYPE_")));
    EXPECT_EQ(kDrawingObjectFamily.size(), 96u);
    EXPECT_THAT(kDrawingObjectFamily, testing::Each(testing::StartsWith(L"NUX_EDO_TYPE_")));
}

// Hosts and rule files spell these; a misspelt one would never be found, whether or not a rule uses it.
TEST(Vocabulary, IsSpeltAsEver) {
    std::vector<std::wstring> all = kElementFamily;
    all.insert(all.end(), kDrawingObjectFamily.begin(), kDrawingObjectFamily.end());
    all.insert(all.end(), {NUX_SINGLE_IDENTIFIERS(TEXT)});
    std::sort(all.begin(), all.end());
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const std::wstring& name : all)
        hash.addData(QString::fromStdWString(name).toLatin1() + '\n');
    EXPECT_EQ(hash.result().toHex().toStdString(), "052d4da68c73cdcad631349fb6f9875b");
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
        {"食堂", L"\uFEFF食堂", true},
        {QString(QChar(0xFEFF)) + "食堂", L"\uFEFF食堂", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(IdentifierField(row.field).matches(row.identifier), row.matches) << row.field.toStdString();
}
