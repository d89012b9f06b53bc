#include "InputError.h"
#include "rules/rule_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace firecheck;

// What the library passes over in silence, the checker refuses with a reason.
TEST(RefusedRuleFile, IsNamedWithItsReason) {
    const QTemporaryDir directory;
    const QString name = directory.filePath("rules.xml");
    const auto expectRefused = [fileName = name.toStdString()](const std::string& reason) {
        EXPECT_THAT([&] { requireWellFormed(fileName); },
                    testing::ThrowsMessage<InputError>(testing::StartsWith(fileName + reason)));
    };
    expectRefused(": cannot be read: ");

    ASSERT_EQ(mkfifo(name.toLocal8Bit().constData(), 0600), 0);
    expectRefused(": expected a rule file, found something else that is no file");
    ASSERT_TRUE(QFile::remove(name));

    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("<x>").repeated(100000) + QByteArray("</x>").repeated(100000));
    file.flush();
    expectRefused(": too large, too deeply nested or too many entities for a rule file");

    const auto expectContentRefused = [&](const QByteArray& content, const std::string& reason) {
        file.resize(0);
        file.seek(0);
        file.write(content);
        file.flush();
        expectRefused(reason);
    };
    expectContentRefused("<a>\n<b></a>", ":2:8: expected a well-formed XML document:");

    // Readers compare attributes pair by pair, wherever these come from.
    QByteArray attributes;
    QByteArray defaults;
    for (int i = 0; i < 100000; ++i) {
        attributes += " a" + QByteArray::number(i) + "='>'";
        defaults += "<!ATTLIST R a" + QByteArray::number(i) + " CDATA '='>";
    }
    const std::string crowded = " expected at most 1000 attributes in a tag";
    expectContentRefused("<R>\n <!-- <x --><X" + attributes + "/></R>", ":2:13:" + crowded);
    expectContentRefused("<!DOCTYPE R [<!ENTITY e \"<x" + attributes + "/>\">]><R>&e;</R>",
                         ":1:26:" + crowded);
    expectContentRefused("<!DOCTYPE R [" + defaults + "]><R/>", ":1:13404:" + crowded);
}
