#pragma once

#include <string>
#include <vector>

namespace firecheck {

struct Command;
class Options;

/// Exit statuses of every command.
enum ExitStatus { kNothingFound = 0, kViolationsFound = 1, kWrongInput = 2 };

// Each command throws InputError for words that make no sense and for input that it cannot use, and answers
// its exit status.
int checkCommand(const Options& options);
int compareCommand(const Options& options);
int completionCommand(const Options& options);
int editCommand(const Options& options);
int exportCommand(const Options& options);
int helpCommand(const Options& options);
int importCommand(const Options& options);
int layersCommand(const Options& options);
int lintRulesCommand(const Options& options);
int lintSiteCommand(const Options& options);
int listRulesCommand(const Options& options);
int manualCommand(const Options& options);
int planCommand(const Options& options);
int showRulesCommand(const Options& options);
int siteSchemaCommand(const Options& options);
int suggestCommand(const Options& options);

/// Throws InputError, with the name that was probably meant, when there is none of that name.
const Command& requiredCommand(const std::string& name);

/// "Did you mean "check"? " or nothing, to stand before further advice.
std::string suggestionText(const std::string& name, const std::vector<std::string>& known);

/// Tells the user, on standard error, what went wrong.
void complain(const std::string& message);

} // namespace firecheck
