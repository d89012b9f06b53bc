#pragma once

#include "text/Place.h"

#include <QString>

#include <vector>

namespace firecheck {

/// Finds lines and columns in the text of an XML document. Tokens are given by where a QXmlStreamReader stood
/// before it read them; it may already have taken the "<" of a tag by then.
class XmlPlaces {
public:
    explicit XmlPlaces(const QString& text);

    Place placeOfToken(qint64 offset) const;

    /// Of the character at this index of the text.
    Place placeAt(int offset) const;

    /// The places of the names of the attributes in a start tag, in their order.
    std::vector<Place> attributePlaces(qint64 tagOffset, qint64 tagEnd) const;

private:
    int tokenStart(qint64 offset) const;

    QString m_text;
    std::vector<int> m_lineStarts;
    std::vector<int> m_secondUnits; ///< of the characters that take two
};

} // namespace firecheck
