#include "command_line/safe_outputs.h"

#include "InputError.h"
#include "rules/rule_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <vector>

namespace firecheck {

namespace {

/// A file that a command reads or writes, and what the command line calls it.
struct NamedFile {
    std::string role;
    QString name;
};

std::optional<struct stat> statusOf(const QString& name) {
    struct stat status {};
    if (stat(QFile::encodeName(name).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

bool isRegular(const QString& name) {
    const auto status = statusOf(name);
    return status && S_ISREG(status->st_mode);
}

/// One file under any two names; of files that are not there yet, by where they will be.
bool areSame(const QString& first, const QString& second) {
    const auto a = statusOf(first);
    const auto b = statusOf(second);
    if (a && b)
        return S_ISREG(a->st_mode) && a->st_dev == b->st_dev && a->st_ino == b->st_ino;
    const auto placeOf = [](const QString& name) {
        const QFileInfo info(name);
        return QDir(QFileInfo(info.path()).canonicalFilePath()).filePath(info.fileName());
    };
    return !a && !b && placeOf(first) == placeOf(second);
}

void append(std::vector<NamedFile>& files, const std::string& option, const Options& options,
            const Command& command) {
    const auto value = command.option(option) ? options.value(QString::fromStdString(option)) : std::nullopt;
    if (value)
        files.push_back({"--" + option, *value});
}

std::vector<NamedFile> inputsOf(const Options& options, const Command& command) {
    std::vector<NamedFile> inputs;
    for (const QString& argument : options.arguments())
        inputs.push_back({"an input", argument});
    append(inputs, "rules", options, command);
    append(inputs, "accept", options, command);
    inputs.push_back({"the rule file of the checker", QString::fromStdString(defaultRuleFile())});
    return inputs;
}

} // namespace

void requireSafeOutputs(const Options& options, const Command& command) {
    std::vector<NamedFile> outputs;
    append(outputs, "output", options, command);
    append(outputs, "apply", options, command);
    append(outputs, "write-accept", options, command);
    if (outputs.size() == 2 && areSame(outputs[0].name, outputs[1].name))
        throw InputError(outputs[0].name.toStdString() + ": expected another file for " + outputs[1].role +
                         " than for " + outputs[0].role);
    bool continuesAcceptances = false;
    for (const NamedFile& output : outputs)
        for (const NamedFile& input : inputsOf(options, command)) {
            if (!areSame(output.name, input.name))
                continue;
            // Reasons were read, and are written again.
            if (output.role == "--write-accept" && input.role == "--accept")
                continuesAcceptances = true;
            else
                throw InputError(output.name.toStdString() + ": expected another file for " + output.role +
                                 ": it is " + input.role + ", which would be lost");
        }
    if (!outputs.empty() && outputs.back().role == "--write-accept" && !continuesAcceptances &&
        isRegular(outputs.back().name))
        throw InputError(outputs.back().name.toStdString() +
                         ": expected a new file for --write-accept; to keep the reasons of this one, name it "
                         "after --accept, too");
}

} // namespace firecheck
