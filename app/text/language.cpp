#include "text/language.h"

#include "InputError.h"

#include <QCoreApplication>
#include <QTranslator>

// Resources of a static library are linked only when they are asked for, from outside any namespace.
static void initialiseLanguages() {
    Q_INIT_RESOURCE(languages);
}

namespace firecheck {

namespace {

const QString kEnglish = QStringLiteral("en");

struct Language {
    QString name = kEnglish;
    QTranslator translator;
};

Language& language() {
    static Language current;
    return current;
}

} // namespace

void useLanguage(const QString& name) {
    initialiseLanguages();
    QTranslator& translator = language().translator;
    QCoreApplication::removeTranslator(&translator);
    if (name != kEnglish) {
        if (!translator.load(":/languages/" + name + ".qm"))
            throw InputError("No language has the name \"" + name.toStdString() +
                             "\". Known are en and zh_CN.");
        QCoreApplication::installTranslator(&translator);
    }
    language().name = name;
}

QString currentLanguage() {
    return language().name;
}

} // namespace firecheck
