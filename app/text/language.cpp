#include "text/language.h"

#include "InputError.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// Resources of a static library are linked only when they are asked for, from outside any namespace.
static void initialiseLanguages() {
    Q_INIT_RESOURCE(languages);
}

namespace firecheck {

void useLanguage(const QString& name) {
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    if (name == "en")
        return;
    initialiseLanguages();
    if (!translator.load(":/languages/" + name + ".qm"))
        throw InputError("No language has the name \"" + name.toStdString() + "\". Known are en and zh_CN.");
    QCoreApplication::installTranslator(&translator);
}

} // namespace firecheck
