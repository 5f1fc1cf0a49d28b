#pragma once

#include <cstdarg>
#include <mutex>
#include <string>
#include <sys/types.h>

/// One of the program's two outputs, written so that nobody ever waits for its reader: a text that cannot be written at
/// once is dropped and counted, and the count is printed before the next text that can be. Everything that the program
/// prints goes through here: a journal or a terminal that stands still must not stop the link, Modbus or the screen.
/// Any thread; a text comes out whole or, where the output took a part of it, its rest comes before the next text.
class LineOutput
{
public:
    /// @param descriptor of the output. What stands behind it may be exchanged while the program runs.
    explicit LineOutput(int descriptor) : m_descriptor(descriptor) { }
    ~LineOutput();
    LineOutput(const LineOutput &) = delete;
    LineOutput &operator=(const LineOutput &) = delete;

    static LineOutput &standardOutput();
    static LineOutput &standardError();

    /// Formats as printf does and writes to standard output. A text is cut at 4000 bytes.
    static void print(const char *format, ...) __attribute__((format(printf, 1, 2)));
    /// From now on messages of the toolkit, the debug log among them, take this way to standard error.
    static void takeToolkitMessages();

    void write(const char *text, size_t size);
    /// Texts dropped since the start.
    unsigned long long dropped() const;

private:
    void lookBehindDescriptor();
    bool writePart(const char **text, size_t *size);
    bool writeWhole(const char *text, size_t size);
    ssize_t writeNow(const char *text, size_t size) const;

    enum Kind { Unknown, File, Pipe, Socket };

    const int m_descriptor;
    mutable std::mutex m_lock; // guards all below; nothing under it waits
    Kind m_kind = Unknown;
    dev_t m_device = 0; // of what stood behind the descriptor at the last text
    ino_t m_inode = 0;
    int m_twin = -1; // the same pipe or terminal, opened anew so that writes to it never wait
    std::string m_rest; // of a text that was taken in part
    unsigned long long m_dropped = 0;
    unsigned long long m_droppedReported = 0; // of these the count was printed
};
