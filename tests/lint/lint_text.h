#pragma once

#include "lint/lint_rule_file.h"

#include <QTemporaryDir>

#include <fstream>
#include <string>

using namespace firecheck;

/// Lints a rule file of this text.
inline std::vector<LintFinding> lintText(const std::string& text) {
    static const QTemporaryDir directory;
    const std::string fileName = directory.filePath("rules.xml").toStdString();
    std::ofstream(fileName, std::ios::binary | std::ios::trunc) << text;
    return lintRuleFile(fileName);
}
