#pragma once

#include <QString>

/// What the flicker function is showing.
class FlickerParam
{
public:
    static QString m_cur_title;
    /// Title of the flicker page on top.
    static QString currentTitle() { return m_cur_title; }
};
