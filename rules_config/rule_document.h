#pragma once

#include <QDomDocument>

/// The document of a rule file; without a document element when the file cannot be opened or parsed.
QDomDocument readRuleDocument(const QString& fileName);
