#include "command_line/Output.h"

#include "InputError.h"

#include <cstdio>
#include <unistd.h>

Output::Output(const QString& fileName)
    : m_name(fileName.isEmpty() ? "standard output" : fileName.toStdString()) {
    bool isOpen = false;
    if (fileName.isEmpty()) {
        isOpen = m_standardOutput.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    } else {
        m_file = std::make_unique<QSaveFile>(fileName);
        isOpen = m_file->open(QIODevice::WriteOnly);
    }
    if (!isOpen)
        fail();
}

void Output::write(const std::string& piece) {
    QIODevice& device = m_file ? static_cast<QIODevice&>(*m_file) : m_standardOutput;
    const auto size = static_cast<qint64>(piece.size());
    if (device.write(piece.data(), size) != size)
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
    const QString reason = m_file ? m_file->errorString() : m_standardOutput.errorString();
    throw InputError(m_name + ": cannot be written: " + reason.toStdString());
}
