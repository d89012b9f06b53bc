#include "report/html/markup.h"

#include "explain/Words.h"
#include "report/escape.h"

namespace firecheck {

QString element(const char* name, const QString& attributes, const QString& content) {
    return QStringLiteral("<") + name + attributes + ">" + content + "</" + name + ">\n";
}

QString ofClass(const QString& classes) {
    return " class=\"" + classes + "\"";
}

QString asSentence(const std::string& text) {
    QString sentence = QString::fromStdString(text);
    if (!sentence.isEmpty())
        sentence[0] = sentence[0].toUpper();
    return escaped(firestandard::Words::tr("%1.", "a sentence and its full stop").arg(sentence));
}

} // namespace firecheck
