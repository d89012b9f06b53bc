#include "rules/decoded_xml.h"

#include <QXmlStreamReader>

#if QT_VERSION_MAJOR >= 6
#include <QStringDecoder>
#else
#include <QTextCodec>
#endif

namespace firecheck {

namespace {

#if QT_VERSION_MAJOR >= 6
DecodedXml decoded(const QByteArray& bytes, QStringDecoder decoder) {
    DecodedXml result{decoder(bytes), false};
    result.hasWrongBytes = decoder.hasError();
    return result;
}
#endif

} // namespace

DecodedXml decodedXml(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    reader.readNext();
    const QByteArray declared = reader.documentEncoding().toString().toLatin1();
#if QT_VERSION_MAJOR >= 6
    if (const auto marked = QStringConverter::encodingForData(bytes, u'<'))
        return decoded(bytes, QStringDecoder(*marked));
    QStringDecoder decoder(declared.isEmpty() ? "UTF-8" : declared.constData());
    return decoded(bytes, decoder.isValid() ? std::move(decoder) : QStringDecoder(QStringConverter::Utf8));
#else
    QTextCodec* codec = QTextCodec::codecForName(declared);
    codec = QTextCodec::codecForUtfText(bytes, codec ? codec : QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState state;
    DecodedXml result{codec->toUnicode(bytes.constData(), bytes.size(), &state), false};
    result.hasWrongBytes = state.invalidChars > 0 || state.remainingChars > 0;
    return result;
#endif
}

} // namespace firecheck
