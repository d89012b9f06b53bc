#include "rules_config/rule_document.h"

#include "rules_config/rule_file_bounds.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace {

/// Empty for what is no file: opening a pipe would wait for its other end.
QByteArray contentOf(const QString& fileName) {
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || file.size() > kLargestRuleFile || !file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.read(file.size()); // the room is taken before the first byte, so no more than needed
}

} // namespace

QDomDocument readRuleDocument(const QString& fileName) {
    QDomDocument document;
    QBuffer content;
    content.setData(contentOf(fileName));
    if (isWithinBounds(content.data()) && content.open(QIODevice::ReadOnly))
        document.setContent(&content);
    return document;
}
