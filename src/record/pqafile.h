#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstdlib>
#include <memory>

class QFile;
struct Derived;

#pragma pack(push, 1)
/// Head of a ".pqa" file, little-endian. Format: docs/formats/pqa.md.
struct __pqa_file_header
{
    qint32 page; // identifier of the page that saved it
    quint32 time; // s since 1970
    qint32 nominalVolt; // V, truncated
    qint32 nominalFrequency; // Hz, truncated
    qint32 joinMode; // 1 to 10
    qint32 clampRatio; // uV/A, phase clamp
    quint32 imageSize; // bytes of the PNG
    quint32 dataSize; // bytes of the page's record
    quint32 version; // of the software: major in the top byte, minor in the next, build in the low half
    quint32 magic; // 0xCC33C3C3
};
#pragma pack(pop)
static_assert(offsetof(__pqa_file_header, imageSize) == 24 && offsetof(__pqa_file_header, magic) == 36,
              "as in the file");
static_assert(sizeof(__pqa_file_header) == 40, "the picture starts at byte 40");

/// Stores a page as a picture of the screen, or as a data file of that picture with the page's record. Both are built
/// in "/tmp"; the one asked for is copied to the storage. No failure is reported: a full disk ends in a short file. GUI
/// thread.
class PqaFile
{
public:
    /// @param png picture of the screen, taken before the dialog for the name comes up; may be empty
    PqaFile(int winId, const Derived &setUp, const QByteArray &png);
    ~PqaFile();
    PqaFile(const PqaFile &) = delete;
    PqaFile &operator=(const PqaFile &) = delete;

    /// Builds the temporary data file from the picture and `size` bytes of the page's record.
    void writeFileData(const void *data, quint32 size);
    /// Copies the picture to the storage as `name`, which carries its extension, over an old file.
    void saveSnapshot(const QString &name);
    /// The same with the data file.
    void saveDataFile(const QString &name);

    static constexpr quint32 kMagic = 0xCC33C3C3;
    static QString imagePath(); // temporary picture, the board's
    static QString dataPath(); // temporary data file, the board's

private:
    void saveImage(const QByteArray &png);
    void open();
    void initFileHeader(int winId, const Derived &setUp);
    void pushData(const void *data, quint32 size);
    void writeFileHeader();
    void writeImageData();
    void writeData();
    void close();
    void write(const void *data, qint64 length);
    static void store(const QString &temporary, const QString &name);

    __pqa_file_header m_header {};
    std::unique_ptr<QFile> m_file;
    bool m_opened = false;
    std::unique_ptr<char, decltype(&std::free)> m_data { nullptr, &std::free };
};
