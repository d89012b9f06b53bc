#pragma once

#include "command_line/Command.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

namespace firecheck {

/// The options and arguments of one command. Throws InputError for options that it does not have.
class Options {
public:
    Options(const QStringList& words, const Command& command);

    /// Nothing when it is not given; the last one when it is given again.
    std::optional<QString> value(const QString& option) const;
    /// All of them when it is given again and again.
    QStringList values(const QString& option) const;
    bool isSet(const QString& flag) const { return m_parser.isSet(flag); }
    QStringList arguments() const { return m_parser.positionalArguments(); }

    /// The value of an option that has a choice, "a|b"; the first of it unless given.
    QString choice(const QString& option) const;
    QString format() const { return choice("format"); }

private:
    const Command& m_command;
    QCommandLineParser m_parser;
};

} // namespace firecheck
