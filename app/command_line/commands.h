#pragma once

#include <QStringList>

#include <string>

namespace firecheck {

/// Exit statuses of every command.
enum ExitStatus { kNothingFound = 0, kViolationsFound = 1, kWrongInput = 2 };

// Each command takes the words after its name, throws InputError for those that make no sense and for input
// that it cannot use, and answers its exit status.
int checkCommand(const QStringList& words);
int lintRulesCommand(const QStringList& words);
int listRulesCommand(const QStringList& words);
int planCommand(const QStringList& words);
int showRulesCommand(const QStringList& words);
int siteSchemaCommand(const QStringList& words);

/// Tells the user, on standard error, what went wrong.
void complain(const std::string& message);

} // namespace firecheck
