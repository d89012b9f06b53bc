#include "edit/SiteFileOnDisk.h"

#include "text/input_text.h"
#include "text/words.h"

#include <QFileInfo>
#include <QSaveFile>

namespace firecheck {

namespace {

void requireFile(const QString& name) {
    if (name == "-" || !QFileInfo(name).isFile())
        throw InputError(name.toStdString() + ": " +
                         filled(Words::tr("expected a file that a site can be saved to")));
}

std::optional<std::string> contentOf(const QString& name) {
    if (!QFileInfo::exists(name))
        return std::nullopt;
    requireFile(name);
    return inputText(name.toStdString(), filled(Words::tr("a site file")));
}

} // namespace

SiteFileOnDisk::SiteFileOnDisk(const QString& fileName) : m_name(fileName), m_known(contentOf(fileName)) {
    // Told before anybody has laid out anything.
    const QFileInfo directory(QFileInfo(fileName).absolutePath());
    if (!directory.isDir() || !directory.isWritable())
        throw InputError(fileName.toStdString() + ": " +
                         filled(Words::tr("expected a file that a site can be saved to")));
}

SiteFileOnDisk::SiteFileOnDisk(const QString& fileName, const std::string& known)
    : m_name(fileName), m_known(known) {
    requireFile(fileName);
}

void SiteFileOnDisk::save(const std::string& text) {
    const auto now = contentOf(m_name);
    if (now && now != m_known)
        throw ChangedOnDisk(m_name.toStdString() + ": " +
                            filled(Words::tr("somebody else has changed the file since it was read")));
    QSaveFile file(m_name);
    const auto size = static_cast<qint64>(text.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size || !file.commit())
        throw InputError(m_name.toStdString() + ": " +
                         filled(Words::tr("cannot be written: %1"), file.errorString()));
    m_known = text;
}

} // namespace firecheck
