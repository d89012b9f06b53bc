#include "text/printable.h"

#include <QString>

namespace firecheck {

std::string printable(const std::string& utf8) {
    QString text = QString::fromStdString(utf8);
    for (QChar& character : text) {
        const auto category = character.category();
        const bool breaksLine = category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
        if (category == QChar::Other_Control || category == QChar::Other_Format || breaksLine)
            character = '?';
    }
    return text.toStdString();
}

} // namespace firecheck
