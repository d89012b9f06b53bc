#include "RuleFileInPlace.h"
#include "source_file.h"

#include <QDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

using firestandard::RuleMap;

namespace {

class RuleFile : public testing::Test, protected RuleFileInPlace {};

QByteArray inGroup(const QByteArray& content, const QByteArray& prolog = QByteArray()) {
    return prolog + "<a><g>" + content + "</g></a>";
}

/// Of the characters beyond ASCII, GB18030 knows the two of "canteen" here.
QByteArray encoded(const QString& text, const QByteArray& codec) {
    if (codec == "UTF-16")
        return QByteArray("\xFF\xFE") +
               QByteArray(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
    return codec == "UTF-8" ? text.toUtf8() : text.toUtf8().replace("食堂", "\xCA\xB3\xCC\xC3");
}

QByteArray nested(int levels) {
    return QByteArray("<x>").repeated(levels) + QByteArray("</x>").repeated(levels);
}

/// A document type that declares entities, the first of `text` and each other one of ten of the one before.
QByteArray tenfold(const QByteArray& text, int entities) {
    QByteArray type = "<!DOCTYPE a [<!ENTITY e0 \"" + text + "\">";
    for (int i = 1; i < entities; ++i) {
        const QByteArray former = "&e" + QByteArray::number(i - 1) + ";";
        type += "<!ENTITY e" + QByteArray::number(i) + " \"" + former.repeated(10) + "\">";
    }
    return type + "]>";
}

/// The text once for each number below `count`, which replaces its "%1".
QByteArray numbered(const QString& text, int count) {
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += text.arg(i).toUtf8();
    return all;
}

int countOf(const RuleMap& rules) {
    int count = 0;
    for (const auto& sharingKey : rules)
        count += static_cast<int>(sharingKey.size());
    return count;
}

TEST_F(RuleFile, ThatWouldExhaustTheProcessGivesNoRules) {
    const QByteArray rule = "<R Type='self'/>";
    const QByteArray openTags = QByteArray("<x>").repeated(1000);
    const QByteArray ends = QByteArray("</x>").repeated(150);
    struct Row {
        const char* what;
        QByteArray text;
        int rules;
    };
    const Row rows[] = {
        {"nested as far as is read", inGroup(nested(254)), 1},
        {"nested deeper", inGroup(nested(255) + rule), 0},
        {"nested very deep", inGroup(nested(100000)), 0},
        {"nested very deep and never closed", "<a><g>" + QByteArray("<x>").repeated(100000), 0},
        {"nested deeper, behind what only looks like ends",
         inGroup(QByteArray("<x>").repeated(200) + "<!-->" + ends + "--><![CDATA[" + ends + "]]><x k='" +
                 QByteArray("/>").repeated(150) + "'>" + QByteArray("<x>").repeated(60) +
                 QByteArray("</x>").repeated(261) + rule),
         0},
        {"nested by an entity that opens and one that closes",
         inGroup("&o;&o;&c;&c;", "<!DOCTYPE a [<!ENTITY o \"" + openTags + "\"><!ENTITY c \"" +
                                     QByteArray(openTags).replace("<", "</") + "\">]>"),
         0},
        {"nested by many references to one entity",
         inGroup(QByteArray("&o;").repeated(100000), "<!DOCTYPE a [<!ENTITY o \"<x>\">]>"), 0},
        {"groups in an element declaration",
         "<!DOCTYPE a [<!ELEMENT a " + QByteArray("(").repeated(100000) + "b" +
             QByteArray(")").repeated(100000) + ">]><a><g>" + rule + "</g></a>",
         0},
        {"entities that multiply", inGroup("<R Type='&e9;'>&e9;</R>", tenfold("many words", 10)), 0},
        {"a long entity that is used often",
         inGroup("<R><ObjName>" + QByteArray("&e;").repeated(100000) + "</ObjName></R>",
                 "<!DOCTYPE a [<!ENTITY e \"" + QByteArray("y").repeated(4000) + "\">]>"),
         0},
        {"a long entity that the document type uses often",
         inGroup(rule, "<!DOCTYPE a [<!ENTITY % p \"" + QByteArray(4000, ' ') + "\">" +
                           QByteArray("%p;").repeated(20000) + "]>"),
         0},
        {"entities of the document type that multiply",
         inGroup(rule, "<!DOCTYPE a [<!ENTITY % p \" \"><!ENTITY % q \"&#37;p;\">%q;]>"), 0},
        {"a default value that multiplies",
         inGroup(rule, "<!DOCTYPE a [<!ENTITY e \"x\"><!ENTITY % p \"<!ATTLIST R k CDATA '&e;'>\">%p;]>"), 0},
        {"more entities than any rule file needs",
         inGroup(rule, "<!DOCTYPE a [" + numbered("<!ENTITY e%1 \"x\">", 20000) + "]>"), 0},
        {"an entity that contains itself", inGroup("&e;" + rule, "<!DOCTYPE a [<!ENTITY e \"&e;\">]>"), 0},
        {"very many rules", inGroup(rule.repeated(50000)), 50000},
        {"a hundred thousand attributes", inGroup("<R " + numbered("a%1='' ", 100000) + "/>"), 1},
        {"an element name of four thousand letters", inGroup("<" + QByteArray("R").repeated(4000) + "/>"), 1},
    };
    for (const Row& row : rows)
        EXPECT_EQ(countOf(rulesOf(row.text)), row.rules) << row.what;
}

TEST_F(RuleFile, WithSoberEntitiesIsReadAsItStands) {
    const RuleMap rules = rulesOf(inGroup(
        "<R Standard='&code;, 3.3.2'><ObjName>&road;</ObjName></R>",
        "<!DOCTYPE a [<!ELEMENT a (g|(h,i))><!ENTITY code \"GB "
        "50720\"><!ENTITY % type \"<!ATTLIST R k CDATA 'v'>\">%type;<!ENTITY road \"fire <b>road</b>\">]>"));
    ASSERT_EQ(rules.value("R").size(), 1u);
    EXPECT_EQ(rules["R"][0].standard, "GB 50720, 3.3.2");
    EXPECT_EQ(rules["R"][0].objName, "fire road");
}

TEST_F(RuleFile, NeverReachesForAnotherFile) {
    QFile other(fileName() + ".secret");
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("<R Type='secret'/>");
    other.close();
    const QByteArray type = "<!DOCTYPE a [<!ENTITY e SYSTEM \"" + other.fileName().toUtf8() + "\">]>";
    const RuleMap rules = rulesOf(inGroup("<Q><ObjName>[&e;]</ObjName></Q>&e;", type));
    EXPECT_FALSE(rules.contains("R"));
    ASSERT_TRUE(rules.contains("Q"));
    EXPECT_EQ(rules["Q"][0].objName, "[]");
}

TEST_F(RuleFile, ThatIsNoFileGivesNoRules) {
    ASSERT_TRUE(QDir().mkdir(fileName()));
    EXPECT_EQ(countOf(read()), 0) << "a directory";
    ASSERT_TRUE(QDir().rmdir(fileName()));

    ASSERT_EQ(mkfifo(fileName().toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(countOf(read()), 0) << "a pipe that nobody writes to";
    ASSERT_TRUE(QFile::remove(fileName()));

    ASSERT_TRUE(QFile::link("/dev/zero", fileName()));
    EXPECT_EQ(countOf(read()), 0) << "an endless device";
    ASSERT_TRUE(QFile::remove(fileName()));
}

TEST_F(RuleFile, IsReadInTheEncodingThatItDeclares) {
    const QString text = QString::fromUtf8("<a><g><R><ObjName>食堂</ObjName></R></g></a>");
    const auto inCodec = [&](const char* codec, const char* declared) {
        const QString declaration = QString("<?xml version='1.0' encoding='%1'?>").arg(declared);
        return encoded(declaration + text, codec);
    };
    const auto objectName = [](const RuleMap& rules) { return rules.value("R").at(0).objName; };
    for (const char* codec : {"UTF-8", "GB18030", "UTF-16"})
        EXPECT_EQ(objectName(rulesOf(inCodec(codec, codec))), QString::fromUtf8("食堂")) << codec;
    // Wrongly declared texts are garbled, but the rules are there; Qt 6 does not parse them.
    const int rules = QT_VERSION_MAJOR < 6 ? 1 : 0;
    EXPECT_EQ(countOf(rulesOf(inCodec("GB18030", "UTF-8"))), rules);
    EXPECT_EQ(countOf(rulesOf(inCodec("UTF-8", "no-such-encoding"))), rules);
}

// How many rules a broken file yields is the parser's business; it must survive, and invent nothing.
TEST_F(RuleFile, CutOffAnywhereYieldsNoRuleThatWasNotThere) {
    const QByteArray shipped = QByteArray::fromStdString(sourceText("data/FireStandardCheck.xml"));
    const RuleMap all = rulesOf(shipped);
    for (int length = 0; length <= shipped.size(); length += length < 300 ? 1 : 397) {
        const RuleMap rules = rulesOf(shipped.left(length));
        int incomplete = 0;
        for (const QString& key : rules.keys())
            incomplete += all.contains(key) || key == "#text" ? 0 : 1;
        // The last rule may have lost the attributes that make its key.
        ASSERT_LE(incomplete, 1) << length;
        ASSERT_LE(countOf(rules), countOf(all) + 1) << length;
    }
}

TEST_F(RuleFile, SurvivesAWrongBitAnywhere) {
    const QByteArray shipped = QByteArray::fromStdString(sourceText("data/FireStandardCheck.xml"));
    const int all = countOf(rulesOf(shipped));
    int complete = 0;
    for (int at = 0; at < shipped.size(); at += 211) {
        QByteArray flipped = shipped;
        flipped[at] = static_cast<char>(flipped[at] ^ (1 << at % 8));
        const int count = countOf(rulesOf(flipped));
        // Without the tag of a group, what its rules contain becomes rules.
        ASSERT_LE(count, 2 * all) << at;
        complete += count == all;
    }
    EXPECT_GT(complete, 0) << "most bits are in texts, where a wrong one costs no rule";
}

} // namespace
