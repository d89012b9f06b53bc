#include "rules/XmlPlaces.h"

#include <algorithm>

namespace firecheck {

XmlPlaces::XmlPlaces(const QString& text) : m_text(text), m_lineStarts{0} {
    const QChar* const characters = text.constData(); // null-terminated
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = characters[i];
        if (character > '\r' && !character.isSurrogate())
            continue;
        if (character == '\n' || (character == '\r' && characters[i + 1] != '\n'))
            m_lineStarts.push_back(i + 1);
        else if (i > 0 && character.isLowSurrogate() && characters[i - 1].isHighSurrogate())
            m_secondUnits.push_back(i);
    }
}

Place XmlPlaces::placeAt(int offset) const {
    const auto after = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), offset);
    const int lineStart = *(after - 1);
    const auto unitsBefore = [&](int end) {
        return std::lower_bound(m_secondUnits.begin(), m_secondUnits.end(), end) - m_secondUnits.begin();
    };
    const auto secondUnits = static_cast<int>(unitsBefore(offset) - unitsBefore(lineStart));
    return {static_cast<int>(after - m_lineStarts.begin()), offset - lineStart - secondUnits + 1};
}

int XmlPlaces::tokenStart(qint64 offset) const {
    int start = static_cast<int>(std::clamp<qint64>(offset, 0, m_text.size()));
    if (start > 0 && m_text[start - 1] == '<')
        return start - 1;
    while (start < m_text.size() && m_text[start].isSpace())
        ++start;
    return start;
}

Place XmlPlaces::placeOfToken(qint64 offset) const {
    return placeAt(tokenStart(offset));
}

std::vector<Place> XmlPlaces::attributePlaces(qint64 tagOffset, qint64 tagEnd) const {
    // Not from tokenStart: the reader may stand behind the name already, which is where blanks are.
    const int start = static_cast<int>(std::clamp<qint64>(tagOffset, 1, m_text.size()));
    const int end = static_cast<int>(std::clamp<qint64>(tagEnd, 0, m_text.size()));
    std::vector<Place> places;
    int nameStart = -1;
    for (int at = start; at < end; ++at) {
        const QChar character = m_text[at];
        if (character == '"' || character == '\'') {
            if (nameStart >= 0)
                places.push_back(placeAt(nameStart));
            at = m_text.indexOf(character, at + 1);
            if (at < 0)
                break;
            nameStart = -1;
        } else if (nameStart < 0 && character != '<' && !character.isSpace() && m_text[at - 1].isSpace()) {
            nameStart = at;
        }
    }
    return places;
}

} // namespace firecheck
