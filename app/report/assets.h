#pragma once

#include <QString>

namespace firecheck {

/// The text of a file of report_assets.qrc, which is built into the program.
QString asset(const QString& name);

} // namespace firecheck
