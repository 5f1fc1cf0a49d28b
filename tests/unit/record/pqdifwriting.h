#pragma once

#include "exportfeed.h"
#include "pqdifreading.h"
#include "record/exports/pqdifexport.h"

#include <QTest>

/// An export to PQDIF into a folder of its own, read back by a reader that knows nothing of the writer.
class PqdifWriting
{
protected:
    static constexpr qint64 kStart = 1795305600000; // ms: 2026-11-22 00:00:00 UTC
    static constexpr qint64 kDay = 86400000;

    static RecordFacts instrument()
    {
        RecordFacts facts = ExportFeed::facts();
        facts.start = kStart;
        facts.end = kStart + kDay;
        return facts;
    }

    static RecordedEvent dip(int number, qint64 start, qint64 duration)
    {
        RecordedEvent event;
        event.number = number;
        event.item.type = EventDip;
        event.item.channel = 1;
        event.item.finished = 1;
        event.item.value = 150.5f;
        event.item.startTime = start;
        event.item.endTime = qMin(start, std::numeric_limits<qint64>::max() - duration) + duration;
        return event;
    }

    static RecordedWaveform waveformOf(RecordedWaveform::Origin origin)
    {
        RecordedWaveform waveform;
        waveform.origin = origin;
        waveform.number = 4;
        waveform.start = double(kStart) + 0.123;
        waveform.sampleRate = 10240;
        waveform.channels = { { "U_L1", "L1", "V", 0.5f }, { "I_L1", "L1", "A", 0.25f } };
        return waveform;
    }

    void reset()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
        m_sink.reset();
    }

    QString target() const { return m_folder->filePath(QStringLiteral("week.pqd")); }
    PqdifExport *begin(bool compressed = false, const PqdifExport::Limits &limits = PqdifExport::Limits())
    {
        m_sink.reset(new PqdifExport({ target(), m_folder->filePath(QString::fromUtf8("240118 M\xC3\xBCller")), true },
                                     compressed, limits));
        return m_sink->begin(instrument()) ? m_sink.data() : nullptr;
    }
    PqdifReading::File read(const QString &name = QStringLiteral("week.pqd"))
    {
        return PqdifReading::read(ExportFeed::contentOf(m_folder->filePath(name)));
    }
    PqdifReading::File finish()
    {
        if (!m_sink->end(instrument())) {
            PqdifReading::File file;
            file.fault = m_sink->error();
            return file;
        }
        return read();
    }
    QStringList left() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<PqdifExport> m_sink;
};
