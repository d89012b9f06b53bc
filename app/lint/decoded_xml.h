#pragma once

#include <QByteArray>
#include <QString>

namespace firecheck {

/// The characters of an XML document, in the encoding that it declares, so that they can be counted.
QString decodedXml(const QByteArray& bytes);

} // namespace firecheck
