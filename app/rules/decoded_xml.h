#pragma once

#include <QByteArray>
#include <QString>

namespace firecheck {

struct DecodedXml {
    QString text;
    bool hasWrongBytes = false; ///< that are no characters of the encoding; the text has U+FFFD there
};

/// The characters of an XML document, in the encoding that it declares, so that they can be counted.
DecodedXml decodedXml(const QByteArray& bytes);

} // namespace firecheck
