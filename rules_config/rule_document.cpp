#include "rules_config/rule_document.h"

#include <QFile>

QDomDocument readRuleDocument(const QString& fileName) {
    QDomDocument document;
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly)) {
        document.setContent(&file);
        file.close();
    }
    return document;
}
