#pragma once

#include <QString>

/// The text of a file of this directory that is built into the program.
QString asset(const QString& name);
