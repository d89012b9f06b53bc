#include "command_line/Output.h"

#include "InputError.h"

#include <cerrno>
#include <cstdio>
#include <unistd.h>

Output::Output(const QString& fileName) : m_name(fileName) {
    if (fileName.isEmpty())
        return;
    m_file = std::make_unique<QSaveFile>(fileName);
    if (!m_file->open(QIODevice::WriteOnly))
        fail();
}

void Output::write(const std::string& piece) {
    const bool isWritten = m_file ? m_file->write(piece.data(), qint64(piece.size())) == qint64(piece.size())
                                  : std::fwrite(piece.data(), 1, piece.size(), stdout) == piece.size();
    if (!isWritten)
        fail();
}

void Output::commit() {
    if (m_file ? !m_file->commit() : std::fflush(stdout) != 0)
        fail();
}

bool Output::isTerminal() const {
    return !m_file && isatty(STDOUT_FILENO) == 1;
}

void Output::fail() const {
    const QString reason = m_file ? m_file->errorString() : qt_error_string(errno);
    const QString name = m_file ? m_name : QStringLiteral("standard output");
    throw InputError((name + ": cannot be written: " + reason).toStdString());
}
