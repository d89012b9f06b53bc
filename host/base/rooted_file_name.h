#pragma once

#include <QString>

/// A rooted name is a file name that starts with a backslash and names no drive. The library opens such
/// names; on this host they live below the drive root, a directory.
///
/// The drive root is the installed data directory until the application sets another one, which it does
/// before the first rooted name is opened.
void setDriveRoot(const QString& directory);

/// Lets one rooted name stand for a file of any name and place, whatever the drive root says.
void mapRootedFileName(const QString& rootedName, const QString& file);

/// The file that a name stands for: rooted names are looked up as told above, with further backslashes read
/// as directory separators; any other name is returned as it is.
QString resolveRootedFileName(const QString& name);
