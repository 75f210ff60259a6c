// A temporary file of this run (a PPD fetched from CUPS), removed when its
// owner goes or takes another file.
#pragma once

#include <QFile>
#include <QString>

#include <utility>

namespace orvan {

class TemporaryFile
{
public:
    TemporaryFile() = default;
    explicit TemporaryFile(QString path) : m_path(std::move(path)) {}
    ~TemporaryFile() { remove(); }
    TemporaryFile(TemporaryFile&& other) noexcept : m_path(std::exchange(other.m_path, QString()))
    {
    }
    TemporaryFile& operator=(TemporaryFile&& other) noexcept
    {
        if (this != &other) {
            remove();
            m_path = std::exchange(other.m_path, QString());
        }
        return *this;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const QString& path() const { return m_path; }

private:
    void remove()
    {
        if (!m_path.isEmpty())
            QFile::remove(m_path);
    }

    QString m_path;
};

} // namespace orvan
