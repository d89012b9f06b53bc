#include "text/input_text.h"

#include "InputError.h"
#include "text/words.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

namespace firecheck {

namespace {

constexpr std::size_t kLargestInput = 256 * 1024 * 1024;
constexpr qint64 kPart = 1024 * 1024; // room for as much is taken at a time, whatever the input's size
constexpr int kPatience = 3000;       // ms in which a named pipe has to find its writer

[[noreturn]] void failToRead(const std::string& fileName, const QString& reason) {
    throw InputError(fileName + ": " + filled(Words::tr("cannot be read: %1"), reason));
}

/// Opens the file without the wait for a writer that a named pipe asks for, which might be endless. Reading
/// then waits for a writer that is there, and ends at once without one.
void openPatiently(QFile& file, const std::string& fileName) {
    const int handle = open(QFile::encodeName(QString::fromStdString(fileName)).constData(),
                            O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0)
        failToRead(fileName, qt_error_string(errno));
    pollfd readable{handle, POLLIN, 0};
    poll(&readable, 1, kPatience);
    fcntl(handle, F_SETFL, 0);
    if (!file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        failToRead(fileName, file.errorString());
}

bool isPipe(int handle) {
    struct stat status {};
    return fstat(handle, &status) == 0 && S_ISFIFO(status.st_mode);
}

} // namespace

std::string inputText(const std::string& fileName, const std::string& what) {
    const auto refusal = [&](const QString& found) {
        return InputError(fileName + ": " + filled(Words::tr("expected %1, found %2"), what, found));
    };
    if (fileName != "-" && QFileInfo(QString::fromStdString(fileName)).isDir())
        throw refusal(Words::tr("a directory"));
    QFile file;
    if (fileName == "-")
        file.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered);
    else
        openPatiently(file, fileName);
    std::string text;
    QByteArray part;
    do {
        part = file.read(kPart);
        text.append(part.constData(), static_cast<std::size_t>(part.size()));
        if (text.size() > kLargestInput)
            throw refusal(Words::tr("more than 256 MiB"));
        // A shorter part of a file is the last: who types would have to end the input twice.
    } while (fileName == "-" ? !part.isEmpty() : part.size() == kPart);
    if (file.error() != QFileDevice::NoError)
        failToRead(fileName, file.errorString());
    if (text.empty() && isPipe(file.handle()))
        throw refusal(Words::tr("a pipe that nothing was written to"));
    return text;
}

} // namespace firecheck
