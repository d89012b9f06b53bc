#include "InputError.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "rules_page/rules_page.h"

#include <QDir>
#include <QFileInfo>

int rulesPageCommand(const QStringList& words) {
    const Options options(words, {"output"});
    if (options.arguments().size() != 1)
        throw InputError("Expected one directory with case files. Try \"firecheck --help\".");
    const QDir directory(options.value("output").value_or("."));
    for (const PageFile& file : rulesPage(readCaseFiles(options.arguments().first().toStdString()))) {
        const QString name = directory.filePath(QString::fromStdString(file.name));
        // Where this fails, writing the file says why.
        QDir().mkpath(QFileInfo(name).path());
        Output output(name);
        output.write(file.content);
        output.commit();
    }
    return kNothingFound;
}
