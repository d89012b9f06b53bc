#include "text/printable.h"

#include <QString>
#include <QVector>

namespace firecheck {

namespace {

bool isHarmful(uint character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

std::string printable(const std::string& utf8) {
    QVector<uint> characters = QString::fromStdString(utf8).toUcs4();
    for (uint& character : characters)
        if (isHarmful(character))
            character = '?';
#if QT_VERSION_MAJOR >= 6
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size())
        .toStdString();
#else
    return QString::fromUcs4(characters.constData(), characters.size()).toStdString();
#endif
}

} // namespace firecheck
