#pragma once

#include "unit/record/fakepqa2device.h"

#include <QFileInfo>
#include <QMap>

#include <memory>
#include <utility>

/// A file in memory whose first part has little room left below 4 GiB.
class LongDevice : public FakePqa2Device
{
public:
    LongDevice() : LongDevice(std::make_shared<State>()) { }
    bool open(const QString &path) override
    {
        *m_shared = State();
        s_parts[QFileInfo(path).fileName()] = m_shared;
        m_first = !path.contains(QLatin1String("_2."));
        return FakePqa2Device::open(path) && FakePqa2Device::seek(0);
    }
    void close() override
    {
        // The next part is another file.
        const State last = *m_shared;
        for (auto &part : s_parts) {
            if (part == m_shared)
                part = std::make_shared<State>(last);
        }
    }
    qint64 write(const char *data, qint64 size) override
    {
        const qint64 written = FakePqa2Device::write(data, size);
        if (m_first && std::exchange(m_first, false)) // the file's head
            skip(qint64(0xFFFFFFFF) - kRoom);
        return written;
    }

    static constexpr qint64 kRoom = 600;
    static inline QMap<QString, std::shared_ptr<State>> s_parts;

private:
    explicit LongDevice(const std::shared_ptr<State> &state) : FakePqa2Device(state.get()), m_shared(state) { }

    std::shared_ptr<State> m_shared;
    bool m_first = false;
};
