#pragma once

#include <QString>

namespace firecheck {

/// The style that gives a site its pages on paper: its name on top of each, its plan on a page that lies on
/// its side. `id` is that of the site's section.
QString paperStyle(const QString& id, const QString& siteName);

} // namespace firecheck
