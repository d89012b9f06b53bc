#include "lint/XmlPlaces.h"

#include <QRegularExpression>

#include <algorithm>

namespace firecheck {

namespace {

bool isBreak(const QString& text, int index) {
    const bool isFirstOfTwo = text[index] == '\r' && index + 1 < text.size() && text[index + 1] == '\n';
    return text[index] == '\n' || (text[index] == '\r' && !isFirstOfTwo);
}

} // namespace

XmlPlaces::XmlPlaces(const QString& text) : m_text(text), m_lineStarts{0} {
    for (int i = 0; i < text.size(); ++i) {
        if (isBreak(text, i))
            m_lineStarts.push_back(i + 1);
        if (i > 0 && text[i].isLowSurrogate() && text[i - 1].isHighSurrogate())
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

std::map<QString, Place> XmlPlaces::attributePlaces(qint64 tagOffset, qint64 tagEnd) const {
    static const QRegularExpression attribute(R"(\s([^\s=<>"']+)\s*=\s*(?:"[^"]*"|'[^']*'))");
    const int start = tokenStart(tagOffset);
    const QString tag = m_text.mid(start, static_cast<int>(tagEnd) - start);
    std::map<QString, Place> places;
    for (auto matches = attribute.globalMatch(tag); matches.hasNext();) {
        const auto match = matches.next();
        places.emplace(match.captured(1), placeAt(start + match.capturedStart(1)));
    }
    return places;
}

} // namespace firecheck
