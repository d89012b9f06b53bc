#include "InputError.h"
#include "command_line/Command.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"
#include "command_line/safe_outputs.h"
#include "text/language.h"
#include "text/use_utf8.h"

#include <QCoreApplication>

#include <exception>

using namespace firecheck;

namespace {

/// The host's names of files are texts; one that is none would be taken for another file.
void requireUtf8(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (QString::fromUtf8(argv[i]).toUtf8() != argv[i])
            throw InputError("Argument " + std::to_string(i) + ", \"" +
                             QString::fromUtf8(argv[i]).toStdString() +
                             "\": expected UTF-8. Rename the file.");
}

int run(QStringList words) {
    if (words.value(0) == "--version" || words.value(0) == "-V") {
        Output output{QString()};
        output.write("firecheck " FIRECHECK_VERSION "\n");
        output.commit();
        return kNothingFound;
    }
    // "firecheck check --help" asks what "firecheck help check" does.
    if (words.removeAll("--help") + words.removeAll("-h") > 0)
        words = QStringList("help") + words.mid(0, 1);
    const Command& command = requiredCommand(words.value(0).toStdString());
    const Options options(words.mid(1), command);
    if (command.option("lang"))
        useLanguage(options.choice("lang"));
    requireSafeOutputs(options, command);
    return command.run(options);
}

} // namespace

int main(int argc, char** argv) {
    firecheck::useUtf8();
    const QCoreApplication application(argc, argv);
    try {
        requireUtf8(argc, argv);
        return run(QCoreApplication::arguments().mid(1));
    } catch (const std::exception& error) {
        complain(error.what());
        return kWrongInput;
    }
}
