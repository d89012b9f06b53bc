#include "text/use_utf8.h"

#include <QByteArray>
#include <QtGlobal>

#if QT_VERSION_MAJOR < 6
#include <QTextCodec>
#endif

namespace firecheck {

void useUtf8() {
#if QT_VERSION_MAJOR < 6
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#else
    // Qt 6 does so of itself, but complains of locales that say otherwise.
    qputenv("LC_ALL", QByteArrayLiteral("C.UTF-8"));
#endif
}

} // namespace firecheck
