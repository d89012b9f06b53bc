#pragma once

#include <string>

namespace firecheck {

class Options;

/// Exit statuses of every command.
enum ExitStatus { kNothingFound = 0, kViolationsFound = 1, kWrongInput = 2 };

// Each command throws InputError for words that make no sense and for input that it cannot use, and answers
// its exit status.
int checkCommand(const Options& options);
int lintRulesCommand(const Options& options);
int listRulesCommand(const Options& options);
int planCommand(const Options& options);
int showRulesCommand(const Options& options);
int siteSchemaCommand(const Options& options);

/// Tells the user, on standard error, what went wrong.
void complain(const std::string& message);

} // namespace firecheck
