#include "lint/decoded_xml.h"

#include <QXmlStreamReader>

#if QT_VERSION_MAJOR >= 6
#include <QStringDecoder>
#else
#include <QTextCodec>
#endif

namespace firecheck {

QString decodedXml(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    reader.readNext();
    const QByteArray declared = reader.documentEncoding().toString().toLatin1();
#if QT_VERSION_MAJOR >= 6
    if (const auto marked = QStringConverter::encodingForData(bytes, u'<'))
        return QStringDecoder(*marked)(bytes);
    QStringDecoder decoder(declared.isEmpty() ? "UTF-8" : declared.constData());
    return decoder.isValid() ? decoder(bytes) : QString::fromUtf8(bytes);
#else
    QTextCodec* codec = QTextCodec::codecForName(declared);
    return QTextCodec::codecForUtfText(bytes, codec ? codec : QTextCodec::codecForName("UTF-8"))
        ->toUnicode(bytes);
#endif
}

} // namespace firecheck
