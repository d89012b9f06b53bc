// Holds the manual page against the help text of the program.

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <set>

namespace {

QString helpText() {
    QProcess program;
    program.start(FIRECHECK_PROGRAM, {"--help"});
    return program.waitForFinished() ? QString::fromUtf8(program.readAllStandardOutput()) : QString();
}

/// The synopsis without the escapes of its hyphens.
QString synopsis() {
    QFile file(SOURCE_DIRECTORY "/docs/firecheck.1");
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).remove('\\').section(".SH SYNOPSIS", 1).section(".SH", 0, 0);
}

/// Each command, and each option and format list after the command it belongs to.
std::set<QString> usages(const QString& text) {
    const QRegularExpression word("firecheck ([a-z-]+)|(--[a-z-]+)|(\\w+(?:\\|\\w+)+)");
    std::set<QString> found;
    QString command;
    for (auto match = word.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        if (!one.captured(1).isEmpty())
            command = one.captured(1);
        else
            found.insert(command + " " + one.captured(0));
    }
    return found;
}

std::string lines(const std::set<QString>& words) {
    std::string text;
    for (const QString& word : words)
        text += word.toStdString() + "\n";
    return text;
}

} // namespace

TEST(ManualPage, NamesWhatTheHelpNames) {
    // What follows the list of commands explains options once more.
    const QString help = helpText().section("firecheck --help", 0, 0);
    const std::set<QString> told = usages(help);
    EXPECT_FALSE(told.empty());
    EXPECT_EQ(lines(usages(synopsis().section(".SY firecheck\n", 0, 0))), lines(told));
}
