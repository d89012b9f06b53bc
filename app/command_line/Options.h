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

    /// The value of --format, one of the command's choice; the first of them unless given.
    QString format() const;

private:
    const Command& m_command;
    QCommandLineParser m_parser;
};

} // namespace firecheck
