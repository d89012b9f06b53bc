#include "case_file/case_directory.h"

#include "InputError.h"

#include <QDir>

namespace firecheck {

namespace {

std::string contentOf(const QString& fileName) {
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError((fileName + ": cannot be read: " + file.errorString()).toStdString());
    return file.readAll().toStdString();
}

} // namespace

std::vector<NamedCaseFile> readCaseFiles(const std::string& directory) {
    const QDir listed(QString::fromStdString(directory));
    std::vector<NamedCaseFile> files;
    for (const QFileInfo& info : listed.entryInfoList({"*.json"}, QDir::Files, QDir::Name))
        files.push_back({info.completeBaseName().toStdString(),
                         readCaseFile(contentOf(info.filePath()), info.filePath().toStdString())});
    if (files.empty())
        throw InputError(directory + ": expected a directory with case files");
    return files;
}

} // namespace firecheck
