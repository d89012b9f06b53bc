#include "base/rooted_file_name.h"

#include <QHash>

namespace {

struct Drive {
    QString root = QStringLiteral(FIRECHECK_DATA_DIRECTORY);
    QHash<QString, QString> mapped;
};

Drive& drive() {
    static Drive theDrive;
    return theDrive;
}

} // namespace

void setDriveRoot(const QString& directory) {
    drive().root = directory;
}

void mapRootedFileName(const QString& rootedName, const QString& file) {
    drive().mapped[rootedName] = file;
}

QString resolveRootedFileName(const QString& name) {
    if (!name.startsWith('\\'))
        return name;
    const auto mapped = drive().mapped.constFind(name);
    if (mapped != drive().mapped.constEnd())
        return *mapped;
    return drive().root + QString(name).replace('\\', '/');
}
