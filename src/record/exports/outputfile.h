#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A file that is written from its beginning to its end in large pieces. Once a write failed nothing more is written,
/// and close() says so: who writes many small things need not ask after each.
class OutputFile
{
public:
    static constexpr int kMostRoom = 4096; // bytes that room() is asked for at most

    OutputFile();
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Begins the file anew, in a place of the export's own.
    bool open(const QString &path);
    bool isOpen() const { return m_fd >= 0; }
    void write(const char *data, qint64 size);
    void write(const QByteArray &bytes) { write(bytes.constData(), bytes.size()); }
    /// Room for at least kMostRoom bytes, to be filled at once; wrote() then says how far.
    char *room()
    {
        if (m_end - m_at < kMostRoom)
            flush();
        return m_at;
    }
    void wrote(char *end) { m_at = end; }
    bool hasFailed() const { return m_errno != 0; }
    /// True when all that was written is in the file.
    bool close();
    /// Why the file failed, for people.
    QString reason() const;

private:
    void flush();
    void put(const char *data, qint64 size);

    int m_fd = -1;
    int m_errno = 0;
    std::vector<char> m_buffer;
    char *m_at = nullptr;
    char *m_end = nullptr;
};
