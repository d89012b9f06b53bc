#pragma once

#include <QString>

class NUXElementObject;

/// Whether the element has the use that an absence rule of this name requires.
bool hasRequiredUse(const NUXElementObject* element, const QString& ruleName);
