#include "InputError.h"
#include "command_line/commands.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>
#include <exception>

using namespace firecheck;

namespace {

constexpr const char* kHelp =
    R"(firecheck - checks construction-site layouts against fire-safety rules

  firecheck check SITE... [--rules FILE] [--format text|json|csv|html] [--output FILE]
        [--accept FILE] [--write-accept FILE] [--profile]
      Checks each site file and reports what breaks a rule. Violations that the file of
      --accept lists with a reason count apart; --write-accept writes such a file for what
      is present. --profile tells the time of each rule, to standard error.
  firecheck plan SITE [--rules FILE] [--output FILE]
      Draws the site with what breaks a rule, as SVG.
  firecheck show-rules [FILE] [--format text|json] [--output FILE]
      Shows the rules of a rule file as the checker holds them.
  firecheck list-rules [--format text|json|markdown] [--output FILE]
      Lists the rule names that mean something, and what each of them judges.
  firecheck lint-rules [FILE] [--format text|json] [--output FILE]
      Finds what the checker passes over in silence in a rule file.
  firecheck site-schema [--format json|markdown] [--output FILE]
      Writes the JSON Schema of site files, or the list of their classes and keys.
  firecheck --help | --version

Results go to standard output or the file named by --output, which is replaced only
when every input could be used; everything else goes to standard error. Without
--rules (or FILE) the rule file that comes with the checker is used.

Exit status: 0 nothing found, 1 violations or findings, 2 wrong usage or input.
)";

int run(const QStringList& words) {
    const QString command = words.value(0);
    const QStringList rest = words.mid(1);
    if (command == "--help" || command == "-h" || rest.contains("--help")) {
        std::fputs(kHelp, stdout);
        return kNothingFound;
    }
    if (command == "--version") {
        std::puts("firecheck " FIRECHECK_VERSION);
        return kNothingFound;
    }
    if (command == "check")
        return checkCommand(rest);
    if (command == "lint-rules")
        return lintRulesCommand(rest);
    if (command == "list-rules")
        return listRulesCommand(rest);
    if (command == "plan")
        return planCommand(rest);
    if (command == "show-rules")
        return showRulesCommand(rest);
    if (command == "site-schema")
        return siteSchemaCommand(rest);
    throw InputError(
        (command.isEmpty() ? "No command is given." : "No such command: \"" + command + "\".").toStdString() +
        " Try \"firecheck --help\".");
}

} // namespace

int main(int argc, char** argv) {
    // File names and output are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    try {
        return run(QCoreApplication::arguments().mid(1));
    } catch (const std::exception& error) {
        complain(error.what());
        return kWrongInput;
    }
}
