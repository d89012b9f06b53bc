#include "report/assets.h"

#include <QFile>

// Resources of a static library are linked only when they are asked for, from outside any namespace.
static void initialiseResources() {
    Q_INIT_RESOURCE(report_assets);
}

namespace firecheck {

QString asset(const QString& name) {
    initialiseResources();
    QFile file(":/report/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The program lacks its file %s.", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

} // namespace firecheck
