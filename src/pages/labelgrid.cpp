#include "pages/labelgrid.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr char kCaptionColor[] = "#c0c0c0";

QLabel *addLabel(QWidget *form, const QString &name, const QRect &place, int textSize, Qt::Alignment alignment)
{
    auto *label = new QLabel(form);
    label->setObjectName(name);
    label->setGeometry(place);
    label->setProperty("textSize", textSize);
    label->setAlignment(alignment | Qt::AlignVCenter);
    return label;
}

} // namespace

LabelGrid::Row LabelGrid::addRow(QWidget *form, const QString &caption, const QStringList &values, int top) const
{
    Row row;
    row.caption = addLabel(form, caption, QRect(captionLeft, top, captionWidth, height), captionSize, Qt::AlignLeft);
    row.caption->setProperty("textColor", QString::fromLatin1(kCaptionColor));
    for (int c = 0; c < std::min(columns, int(values.size())); ++c)
        row.values[c]
            = addLabel(form, values.at(c), QRect(left + c * pitch, top, width, height), textSize, Qt::AlignRight);
    return row;
}

LabelGrid::Row LabelGrid::addChannels(QWidget *form, const QString &name, int top, const char *fourth) const
{
    QStringList values;
    for (const char *channel : { "L1", "L2", "L3", fourth })
        values << name + QLatin1Char('_') + QLatin1String(channel);
    return addRow(form, name + QLatin1String("_t"), values, top);
}

ChannelLabels::LabelRow LabelGrid::addHeaders(QWidget *form, int top, int headerHeight, int headerSize) const
{
    ChannelLabels::LabelRow headers {};
    for (int c = 0; c < columns; ++c)
        headers[c] = addLabel(form, QStringLiteral("header_%1").arg(c + 1),
                              QRect(left + c * pitch, top, width, headerHeight), headerSize, Qt::AlignRight);
    return headers;
}

ValueStrip::Labels ValueStrip::add(QWidget *form, const char *caption, const char *value, int count) const
{
    constexpr int kHeight = 30;
    constexpr int kTextSize = 20;
    Labels labels;
    for (int c = 0; c < std::min(count, int(kChannels)); ++c) {
        const int x = left + c * pitch;
        labels.captions[c] = addLabel(form, QString::fromLatin1(caption).arg(c + 1),
                                      QRect(x, top, captionWidth, kHeight), kTextSize, Qt::AlignLeft);
        labels.values[c] = addLabel(form, QString::fromLatin1(value).arg(c + 1),
                                    QRect(x + captionWidth, top, valueWidth, kHeight), kTextSize, Qt::AlignLeft);
    }
    return labels;
}
