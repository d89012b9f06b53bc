#pragma once

#include "InputError.h"

#include <QString>

#include <optional>
#include <string>

namespace firecheck {

/// That a file is no longer what was read; the text says so.
class ChangedOnDisk : public InputError {
public:
    using InputError::InputError;
};

/// The file that a site is saved to, whose content nobody else may have changed meanwhile.
class SiteFileOnDisk {
public:
    /// A file of which nothing was read; it may be missing. Throws InputError for what is no file.
    explicit SiteFileOnDisk(const QString& fileName);
    /// A file from which `known` was read.
    SiteFileOnDisk(const QString& fileName, const std::string& known);

    const QString& name() const { return m_name; }

    /// Puts the text in the file's place, whole or not at all. Throws ChangedOnDisk when the file holds
    /// anything else than was known of it, and InputError when it cannot be written. A file that is gone is
    /// written anew: nothing can be lost.
    void save(const std::string& text);

private:
    QString m_name;
    std::optional<std::string> m_known; ///< nothing for a file that is not there
};

} // namespace firecheck
