#include "command_line/Output.h"

#include "InputError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <unistd.h>

namespace firecheck {

namespace {

std::unique_ptr<QFileDevice> openedStandardOutput() {
    auto file = std::make_unique<QFile>();
    file->open(stdout, QIODevice::WriteOnly);
    return file;
}

/// A file to be replaced as a whole; devices and pipes take what is written to them.
std::unique_ptr<QFileDevice> openedFile(const QString& fileName) {
    const QFileInfo existing(fileName);
    std::unique_ptr<QFileDevice> file;
    if (existing.exists() && !existing.isFile())
        file = std::make_unique<QFile>(fileName);
    else
        file = std::make_unique<QSaveFile>(fileName);
    file->open(QIODevice::WriteOnly);
    return file;
}

} // namespace

bool Output::isStandard(const QString& fileName) {
    return fileName.isEmpty() || fileName == "-";
}

Output::Output(const QString& fileName)
    : m_name(isStandard(fileName) ? QStringLiteral("standard output") : fileName),
      m_file(isStandard(fileName) ? openedStandardOutput() : openedFile(fileName)) {
    require(m_file->isOpen());
}

void Output::write(const std::string& piece) {
    require(m_file->write(piece.data(), qint64(piece.size())) == qint64(piece.size()));
}

void Output::commit() {
    auto* const replacement = qobject_cast<QSaveFile*>(m_file.get());
    require(replacement ? replacement->commit() : m_file->flush());
}

bool Output::isTerminal() const {
    return isatty(m_file->handle()) == 1;
}

void Output::require(bool succeeded) const {
    if (!succeeded)
        throw InputError((m_name + ": cannot be written: " + m_file->errorString()).toStdString());
}

} // namespace firecheck
