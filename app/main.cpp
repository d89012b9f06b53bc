#include "InputError.h"
#include "command_line/Command.h"
#include "command_line/Options.h"
#include "command_line/commands.h"
#include "command_line/safe_outputs.h"
#include "text/use_utf8.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

using namespace firecheck;

namespace {

int run(const QStringList& words) {
    const QString command = words.value(0);
    const QStringList rest = words.mid(1);
    if (command == "--help" || command == "-h" || rest.contains("--help")) {
        std::fputs(helpText().c_str(), stdout);
        return kNothingFound;
    }
    if (command == "--version") {
        std::puts("firecheck " FIRECHECK_VERSION);
        return kNothingFound;
    }
    if (const Command* known = findCommand(command.toStdString())) {
        const Options options(rest, *known);
        requireSafeOutputs(options, *known);
        return known->run(options);
    }
    throw InputError(
        (command.isEmpty() ? "No command is given." : "No such command: \"" + command + "\".").toStdString() +
        " Try \"firecheck --help\".");
}

} // namespace

int main(int argc, char** argv) {
    firecheck::useUtf8();
    const QCoreApplication application(argc, argv);
    try {
        return run(QCoreApplication::arguments().mid(1));
    } catch (const std::exception& error) {
        complain(error.what());
        return kWrongInput;
    }
}
