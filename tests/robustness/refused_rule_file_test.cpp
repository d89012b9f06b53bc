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

    file.resize(0);
    file.seek(0);
    file.write("<a>\n<b></a>");
    file.flush();
    expectRefused(":2:8: expected a well-formed XML document:");
}
