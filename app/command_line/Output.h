#pragma once

#include <QFileDevice>
#include <QString>

#include <memory>
#include <string>

namespace firecheck {

/// Where results go: standard output, a device or a pipe, or a file that takes the place of an older one only
/// when all is written. Every failure to write throws InputError.
class Output {
public:
    /// An empty name and "-" stand for standard output.
    explicit Output(const QString& fileName);
    static bool isStandard(const QString& fileName);

    void write(const std::string& piece);

    /// Without this a file is left as it was.
    void commit();

    bool isTerminal() const;

private:
    void require(bool succeeded) const;

    QString m_name;
    std::unique_ptr<QFileDevice> m_file;
};

} // namespace firecheck
