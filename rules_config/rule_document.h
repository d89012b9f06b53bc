#pragma once

#include <QDomDocument>

/// The document of a rule file; without a document element when the file cannot be opened or parsed, or when
/// it is out of bounds (see rule_file_bounds.h).
QDomDocument readRuleDocument(const QString& fileName);
