#include "InputError.h"
#include "rules/rule_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

// What the library passes over in silence, the checker refuses with a reason.
TEST(RefusedRuleFile, IsNamedWithItsReason) {
    const QTemporaryDir directory;
    const QString name = directory.filePath("rules.xml");
    const auto reason = [&] {
        try {
            requireWellFormed(name.toStdString());
            return std::string();
        } catch (const InputError& error) {
            return std::string(error.what()).substr(name.size());
        }
    };
    EXPECT_EQ(reason().substr(0, 18), ": cannot be read: ");

    ASSERT_EQ(mkfifo(name.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(reason(), ": expected a rule file, found something else that is no file");
    ASSERT_TRUE(QFile::remove(name));

    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("<x>").repeated(100000) + QByteArray("</x>").repeated(100000));
    file.flush();
    EXPECT_EQ(reason(), ": too large, too deeply nested or too many entities for a rule file");

    file.resize(0);
    file.seek(0);
    file.write("<a>\n<b></a>");
    file.flush();
    EXPECT_EQ(reason().substr(0, 42), ":2:7: expected a well-formed XML document:");
}
