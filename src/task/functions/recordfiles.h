#pragma once

#include "record/pqa2ff.h"
#include "settings/recordgroups.h"

#include <array>
#include <functional>
#include <memory>

class Pqa2Device;
class RecordFolder;

/// The files of one recording. What is written without an open file is dropped. One thread at a time.
class RecordFiles
{
public:
    using MakeDevice = std::function<std::unique_ptr<Pqa2Device>()>;

    /// \a device makes what lies below each file.
    explicit RecordFiles(const MakeDevice &device = {});

    /// Opens the common file and those of the chosen items (RecordInfo::Item), each for itself. \a start, in s since
    /// 1970, stands at the beginning of the common file, and of every further part of a file.
    void open(const RecordFolder &folder, quint32 items, quint32 start);
    bool isOpen(RecordFile file) const { return m_files[file] && m_files[file]->isOpen(); }

    void add(RecordFile file, quint32 type, const QByteArray &payload);
    /// Text in the common file's log.
    void log(const QByteArray &text);
    /// Sends everything that was written so far on its way to the card.
    void flushBehind();
    /// Whether the common file could not be begun, or a file took less than it was given last.
    bool refuses() const;
    void close();

private:
    MakeDevice m_makeDevice;
    std::array<std::unique_ptr<Pqa2FF>, kRecordFiles> m_files;
};
