#include "command_line/safe_outputs.h"

#include "InputError.h"
#include "command_line/Output.h"
#include "rules/rule_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace firecheck {

namespace {

/// A file that a command reads or writes, and what the command line calls it.
struct NamedFile {
    std::string role;
    QString name;
    std::optional<int> stream; ///< a standard stream instead of a file
};

/// Of the file behind links; of "-", of what standard input or output is.
std::optional<struct stat> statusOf(const NamedFile& file) {
    struct stat status {};
    const int failed =
        file.stream ? fstat(*file.stream, &status) : stat(QFile::encodeName(file.name).constData(), &status);
    return failed ? std::nullopt : std::optional(status);
}

bool isRegular(const NamedFile& file) {
    const auto status = statusOf(file);
    return status && S_ISREG(status->st_mode);
}

/// Where a file that is not there yet will be: a link may lead to nothing, too.
QString futurePlace(const QString& name) {
    constexpr int mostLinks = 40;
    QFileInfo info(name);
    for (int i = 0; i < mostLinks && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return QDir(QFileInfo(info.path()).canonicalFilePath()).filePath(info.fileName());
}

/// One file under any two names; of files that are not there yet, by where they will be.
bool areSame(const NamedFile& first, const NamedFile& second) {
    if (first.stream && first.stream == second.stream)
        return true;
    const auto a = statusOf(first);
    const auto b = statusOf(second);
    if (a && b)
        return S_ISREG(a->st_mode) && a->st_dev == b->st_dev && a->st_ino == b->st_ino;
    return !a && !b && futurePlace(first.name) == futurePlace(second.name);
}

NamedFile output(const std::string& role, const QString& name) {
    if (Output::isStandard(name))
        return {role, QStringLiteral("standard output"), STDOUT_FILENO};
    return {role, name, std::nullopt};
}

NamedFile input(const std::string& role, const QString& name) {
    if (name == "-")
        return {role, QStringLiteral("standard input"), STDIN_FILENO};
    return {role, name, std::nullopt};
}

std::optional<QString> given(const char* option, const Options& options, const Command& command) {
    return command.option(option) ? options.value(option) : std::nullopt;
}

/// The results come first; a command without an option for them writes them all the same.
std::vector<NamedFile> outputsOf(const Options& options, const Command& command) {
    std::vector<NamedFile> outputs{output("--output", given("output", options, command).value_or(QString()))};
    for (const char* option : {"apply", "write-accept"})
        if (const auto name = given(option, options, command))
            outputs.push_back(output("--" + std::string(option), *name));
    return outputs;
}

std::vector<NamedFile> inputsOf(const Options& options, const Command& command) {
    std::vector<NamedFile> inputs;
    if (command.readsFiles)
        for (const QString& argument : options.arguments())
            inputs.push_back(input("an input", argument));
    for (const char* option : {"rules", "accept", "layers"})
        if (const auto name = given(option, options, command))
            inputs.push_back(input("--" + std::string(option), *name));
    inputs.push_back(input("the rule file of the checker", QString::fromStdString(defaultRuleFile())));
    return inputs;
}

void requireStandardInputOnce(const std::vector<NamedFile>& inputs) {
    if (std::count_if(inputs.begin(), inputs.end(),
                      [](const NamedFile& input) { return input.stream.has_value(); }) > 1)
        throw InputError("-: expected standard input to be named once");
}

} // namespace

void requireSafeOutputs(const Options& options, const Command& command) {
    const std::vector<NamedFile> outputs = outputsOf(options, command);
    const std::vector<NamedFile> inputs = inputsOf(options, command);
    requireStandardInputOnce(inputs);
    for (std::size_t i = 1; i < outputs.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (areSame(outputs[i], outputs[j]))
                throw InputError(outputs[i].name.toStdString() + ": expected another file for " +
                                 outputs[i].role + " than for " + outputs[j].role);
    bool continuesAcceptances = false;
    for (const NamedFile& output : outputs)
        for (const NamedFile& input : inputs) {
            if (!areSame(output, input))
                continue;
            // Reasons were read, and are written again.
            if (output.role == "--write-accept" && input.role == "--accept")
                continuesAcceptances = true;
            else
                throw InputError(output.name.toStdString() + ": expected another file for " + output.role +
                                 ": it is " + input.role + ", which would be lost");
        }
    if (outputs.back().role == "--write-accept" && !outputs.back().stream && !continuesAcceptances &&
        isRegular(outputs.back()))
        throw InputError(outputs.back().name.toStdString() +
                         ": expected a new file for --write-accept; to keep the reasons of this one, name it "
                         "after --accept, too");
}

} // namespace firecheck
