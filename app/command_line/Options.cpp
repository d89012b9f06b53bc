#include "command_line/Options.h"

#include "InputError.h"
#include "command_line/commands.h"

namespace firecheck {

Options::Options(const QStringList& words, const Command& command) : m_command(command) {
    for (const CommandOption& option : command.options) {
        QStringList names{option.name};
        if (option.letter)
            names << QString(QChar(option.letter));
        m_parser.addOption({names, {}, option.value});
    }
    // The parser expects the program's name first.
    if (m_parser.parse(QStringList("firecheck") + words)) {
        if (arguments().contains(QString()))
            throw InputError("An argument is empty. Try \"firecheck help " + std::string(command.name) +
                             "\".");
        return;
    }
    std::string suggestion;
    std::vector<std::string> known;
    for (const CommandOption& option : command.options)
        known.emplace_back("--" + std::string(option.name));
    for (const QString& unknown : m_parser.unknownOptionNames())
        suggestion = suggestionText("--" + unknown.toStdString(), known);
    throw InputError(m_parser.errorText().toStdString() + " " + suggestion + "Try \"firecheck help " +
                     command.name + "\".");
}

std::optional<QString> Options::value(const QString& option) const {
    const QStringList given = values(option);
    return given.isEmpty() ? std::nullopt : std::optional(given.last());
}

QStringList Options::values(const QString& option) const {
    const QStringList given = m_parser.values(option);
    if (given.contains(QString()))
        throw InputError("Option --" + option.toStdString() + " needs a value.");
    return given;
}

QString Options::choice(const QString& option) const {
    const QStringList allowed = QString(m_command.option(option.toStdString())->value).split('|');
    const QString chosen = value(option).value_or(allowed.first());
    if (!allowed.contains(chosen))
        throw InputError("No such " + (option == "lang" ? "language" : option.toStdString()) + ": \"" +
                         chosen.toStdString() + "\". Choose one of " + allowed.join(", ").toStdString() +
                         ".");
    return chosen;
}

} // namespace firecheck
