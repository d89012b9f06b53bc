// Writes the page about the rules, with its plans, from the case files: rules-page CASES DIRECTORY.

#include "InputError.h"
#include "command_line/Output.h"
#include "rules_page/rules_page.h"
#include "text/use_utf8.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

using namespace firecheck;

namespace {

void writePage(const QStringList& words) {
    if (words.size() != 2)
        throw InputError("usage: rules-page CASES DIRECTORY");
    const QDir directory(words[1]);
    for (const PageFile& file : rulesPage(readCaseFiles(words[0].toStdString()))) {
        const QString name = directory.filePath(QString::fromStdString(file.name));
        // Where this fails, writing the file says why.
        QDir().mkpath(QFileInfo(name).path());
        Output output(name);
        output.write(file.content);
        output.commit();
    }
}

} // namespace

int main(int argc, char** argv) {
    useUtf8();
    const QCoreApplication application(argc, argv);
    try {
        writePage(QCoreApplication::arguments().mid(1));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "rules-page: %s\n", error.what());
        return 2;
    }
}
