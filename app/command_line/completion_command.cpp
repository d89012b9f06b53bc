#include "InputError.h"
#include "command_line/Command.h"
#include "command_line/Options.h"
#include "command_line/Output.h"
#include "command_line/commands.h"

namespace firecheck {

namespace {

std::string commandNames() {
    std::string names;
    for (const Command& command : commands())
        names += (names.empty() ? "" : " ") + std::string(command.name);
    return names;
}

std::string optionNames(const Command& command) {
    std::string names = "--help";
    for (const CommandOption& option : command.options)
        names += " --" + std::string(option.name);
    return names;
}

std::string choicesOf(const CommandOption& option) {
    return QString(option.value).replace('|', ' ').toStdString();
}

std::string bashScript() {
    std::string script = "_firecheck() {\n"
                         "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
                         "    local command=${COMP_WORDS[1]} options=\n"
                         "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                         "        COMPREPLY=($(compgen -W '" +
                         commandNames() +
                         " --help --version' -- \"$word\"))\n        return\n    fi\n"
                         "    case $command:$before in\n    help:help) options='" +
                         commandNames() + "' ;;\n    completion:completion) options='bash zsh' ;;\n";
    for (const Command& command : commands())
        for (const CommandOption& option : command.options)
            if (QString(option.value).contains('|'))
                script += "    " + std::string(command.name) + ":--" + option.name + ") options='" +
                          choicesOf(option) + "' ;;\n";
    script += "    esac\n    if [ -z \"$options\" ] && [[ $word == -* ]]; then\n        case $command in\n";
    for (const Command& command : commands())
        script += "        " + std::string(command.name) + ") options='" + optionNames(command) + "' ;;\n";
    return script + "        esac\n    fi\n"
                    "    if [ -n \"$options\" ]; then\n"
                    "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
                    "    else\n        COMPREPLY=($(compgen -f -- \"$word\"))\n    fi\n}\n"
                    "complete -o filenames -F _firecheck firecheck\n";
}

/// zsh runs scripts for bash, once asked to.
std::string zshScript() {
    return "#compdef firecheck\nautoload -U +X bashcompinit && bashcompinit\n" + bashScript();
}

} // namespace

int completionCommand(const Options& options) {
    const QString shell = options.arguments().join(' ');
    if (shell != "bash" && shell != "zsh")
        throw InputError("Expected the name of a shell, bash or zsh.");
    Output output(options.value("output").value_or(QString()));
    output.write(shell == "bash" ? bashScript() : zshScript());
    output.commit();
    return kNothingFound;
}

} // namespace firecheck
