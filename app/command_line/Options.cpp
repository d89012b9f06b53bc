#include "command_line/Options.h"

#include "InputError.h"

namespace firecheck {

Options::Options(const QStringList& words, const Command& command) : m_command(command) {
    for (const CommandOption& option : command.options)
        m_parser.addOption({option.name, {}, option.value});
    // The parser expects the program's name first.
    if (!m_parser.parse(QStringList("firecheck") + words))
        throw InputError(m_parser.errorText().toStdString() + " Try \"firecheck --help\".");
}

std::optional<QString> Options::value(const QString& option) const {
    if (!m_parser.isSet(option))
        return std::nullopt;
    const QString given = m_parser.value(option);
    if (given.isEmpty())
        throw InputError("Option --" + option.toStdString() + " needs a value.");
    return given;
}

QString Options::format() const {
    const QStringList allowed = QString(m_command.option("format")->value).split('|');
    const QString format = value("format").value_or(allowed.first());
    if (!allowed.contains(format))
        throw InputError("No such format: \"" + format.toStdString() + "\". Choose one of " +
                         allowed.join(", ").toStdString() + ".");
    return format;
}

} // namespace firecheck
