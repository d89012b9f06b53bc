#include "report/html/paper.h"

#include <QVector>

namespace firecheck {

namespace {

/// A string of CSS that means the text, whatever it holds.
QString cssString(const QString& text) {
    QString result = "\"";
    for (const uint character : text.toUcs4()) {
        const bool isPlain = (character >= '0' && character <= '9') ||
                             (character >= 'a' && character <= 'z') ||
                             (character >= 'A' && character <= 'Z') || character == ' ';
        result += isPlain ? QString(QChar(static_cast<ushort>(character)))
                          : "\\" + QString::number(character == 0 ? 0xfffd : character, 16) + " ";
    }
    return result + "\"";
}

} // namespace

QString paperStyle(const QString& id, const QString& siteName) {
    const QString top = " { @top-left { content: " + cssString(siteName) + "; } }\n";
    const QString section = "#" + id;
    return "@page " + id + " { size: portrait; margin: 16mm 14mm; }\n@page " + id + top + "@page " + id +
           "-plan" + top + "@media print { " + section + " { page: " + id + "; } " + section + " > header, " +
           section + " .plan-pane { page: " + id + "-plan; } }\n";
}

} // namespace firecheck
