#include "edit/page_files.h"

#include "edit/page_words.h"

#include <QDir>
#include <QFile>

// Resources of a static library are linked only when they are asked for, from outside any namespace.
static void initialisePage() {
    Q_INIT_RESOURCE(edit_page);
}

namespace firecheck {

namespace {

const char* mediaTypeOf(const QString& name) {
    if (name.endsWith(".js"))
        return "text/javascript; charset=utf-8";
    return name.endsWith(".css") ? "text/css; charset=utf-8" : "text/html; charset=utf-8";
}

} // namespace

std::optional<PageFile> pageFile(const std::string& address) {
    if (address == "words.json")
        return PageFile{pageWords().dump(), "application/json"};
    initialisePage();
    const QString wanted = address.empty() ? QStringLiteral("index.html") : QString::fromStdString(address);
    const bool isScript = wanted.startsWith("script/");
    const QString directory = isScript ? QStringLiteral(":/edit/script") : QStringLiteral(":/edit");
    const QString name = isScript ? wanted.mid(7) : wanted;
    // Compared with the names there are, never put together to a path.
    for (const QString& known : QDir(directory).entryList(QDir::Files)) {
        if (known != name)
            continue;
        QFile file(directory + "/" + known);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The program lacks its file %s.", qPrintable(known));
        return PageFile{file.readAll().toStdString(), mediaTypeOf(known)};
    }
    return std::nullopt;
}

} // namespace firecheck
