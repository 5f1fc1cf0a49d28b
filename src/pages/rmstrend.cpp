#include "pages/rmstrend.h"

#include "widgets/text/f_to_str.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace RmsTrend {

QVector<float> decimate(const QList<float> &values, const Window &window, float reference)
{
    const int group = std::max(window.valuesPerPoint, 1);
    const int end = values.size() - std::max(window.offset, 0);
    if (end <= 0)
        return {};
    const int count = int(std::min<qint64>(kPoints, (qint64(end) + group - 1) / group));
    QVector<float> points(count);
    int i = end - 1;
    for (int point = count - 1; point >= 0; --point) {
        const int oldest = std::max(i - group + 1, 0);
        float farthest = F_to_Str::clean(values.at(i));
        float distance = std::fabs(farthest - reference);
        for (--i; i >= oldest; --i) {
            const float value = F_to_Str::clean(values.at(i));
            if (std::fabs(value - reference) > distance) {
                farthest = value;
                distance = std::fabs(value - reference);
            }
        }
        points[point] = farthest;
    }
    return points;
}

TrendScaler::Picture scale(const QList<float> (&lists)[kChannels], const Window &window, float reference, double factor,
                           int counted)
{
    TrendScaler::Picture picture;
    if (window.offset >= lists[0].size() || !TrendScaler::findExtremes(lists, picture.max, picture.min, counted))
        return picture;
    TrendScaler::labelLimits(picture, factor);
    for (int c = 0; c < kChannels; ++c) {
        const int group = c < 3 ? 0 : 1;
        const QVector<float> points = decimate(lists[c], window, reference);
        picture.series[c].reserve(points.size());
        for (const float value : points)
            picture.series[c].append(TrendScaler::bandOffset(value, picture.min[group], picture.max[group]));
    }
    return picture;
}

float valueAt(const QList<float> &values, const Window &window, int position)
{
    if (values.isEmpty() || window.offset < 0 || window.offset >= values.size())
        return 0.0f;
    const qint64 index = values.size() - qint64(window.offset) - qint64(window.valuesPerPoint) * position;
    return values.at(int(std::clamp<qint64>(index, 0, values.size() - 1)));
}

QStringList axisLabels(int count, int seconds, int extra)
{
    QStringList labels;
    for (int i = count; i >= 1; --i) {
        const int t = i * (seconds + extra) / count;
        if (t < 60)
            labels << QStringLiteral("%1s").arg(t);
        else if (t % 60 == 0)
            labels << QStringLiteral("%1m").arg(t / 60);
        else
            labels << QStringLiteral("%1m%2s").arg(t / 60).arg(t % 60);
    }
    return labels;
}

namespace {

constexpr int kEventWords = 12;
static_assert(sizeof(__event_item) == 4 * kEventWords, "words of a saved event");

void appendWord(QByteArray &bytes, qint32 word)
{
    bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
}

} // namespace

QByteArray savedRecord(const __rms_trend_data &record, const EventSelection &events)
{
    const int n = record.voltage[0].size();
    QByteArray bytes;
    appendWord(bytes, qint32(2 * kChannels * n * int(sizeof(float))));
    appendWord(bytes, qint32(events.size() * int(sizeof(__event_item))));
    for (const QList<float> *lists : { record.voltage, record.current }) {
        for (int c = 0; c < kChannels; ++c) {
            QVector<float> values(n, 0.0f);
            std::copy_n(lists[c].begin(), std::min(n, int(lists[c].size())), values.begin());
            bytes.append(reinterpret_cast<const char *>(values.constData()), n * int(sizeof(float)));
        }
    }
    for (int i = 0; i < events.size(); ++i) {
        const __event_item &event = events.at(i);
        // Field by field into zeroed words: the gaps between the fields must not carry chance bytes into a file.
        char words[sizeof(__event_item)] = {};
        const auto put = [&words](std::size_t at, const auto &field) { std::memcpy(words + at, &field, sizeof field); };
        put(offsetof(__event_item, channel), event.channel);
        put(offsetof(__event_item, type), event.type);
        put(offsetof(__event_item, finished), event.finished);
        put(offsetof(__event_item, value), event.value);
        put(offsetof(__event_item, startSeconds), event.startSeconds);
        put(offsetof(__event_item, startTime), event.startTime);
        put(offsetof(__event_item, endTime), event.endTime);
        put(offsetof(__event_item, duration), event.duration);
        bytes.append(words, sizeof words);
    }
    return bytes;
}

} // namespace RmsTrend
