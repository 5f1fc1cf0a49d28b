#pragma once

#include "pages/channellabels.h"

#include <QStringList>

/// Where the labels of a table stand: rows of a caption and a value for each column. A page places its table by one
/// such record, and only what is particular to the page stands in its form. Pixels of the widget that gets the labels.
/// What is added still wants LabelLook::dress.
struct LabelGrid
{
    /// Labels of one row; a column that the grid does not have stays null.
    struct Row
    {
        QLabel *caption = nullptr;
        ChannelLabels::LabelRow values {};
    };

    int left; // of the first value
    int pitch; // from one column to the next
    int width; // of a value
    int textSize;
    int height; // of a row
    int captionLeft;
    int captionWidth;
    int captionSize;
    int columns = kChannels;

    /// A row of free names, at most as many values as channels.
    Row addRow(QWidget *form, const QString &caption, const QStringList &values, int top) const;
    /// The row <name>_t, <name>_L1, <name>_L2, <name>_L3, <name>_N; \a fourth stands for the "N".
    Row addChannels(QWidget *form, const QString &name, int top, const char *fourth = "N") const;
    /// Column headers header_1 to header_4 over the values.
    ChannelLabels::LabelRow addHeaders(QWidget *form, int top, int headerHeight, int headerSize) const;
};

/// A line of pairs of caption and value below a chart, one for each channel.
struct ValueStrip
{
    struct Labels
    {
        ChannelLabels::LabelRow captions {};
        ChannelLabels::LabelRow values {};
    };

    int left; // of the first caption
    int pitch; // from one caption to the next
    int captionWidth;
    int valueWidth;
    int top = 368;

    /// Labels by number: "%1" of the patterns is 1 to \a count.
    Labels add(QWidget *form, const char *caption = "D%1_Caption", const char *value = "D%1_Value",
               int count = kChannels) const;
};
