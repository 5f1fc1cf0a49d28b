#pragma once

#include <QWidget>

/// How far a waveform capture has come: a bar that fills, with the percent in it.
class WaveProgressBar : public QWidget
{
    Q_OBJECT

public:
    explicit WaveProgressBar(QWidget *parent = nullptr) : QWidget(parent) { }

    int percent() const { return m_percent; }
    /// Held to 0 to 100.
    void setPercent(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = 0;
};
