#pragma once

#include <QColor>
#include <QVector>
#include <QWidget>

/// Boxes of colour side by side, one of which may stand in a frame: the colours to choose from, or those in use. GUI
/// thread.
class PhaseColorPalette : public QWidget
{
    Q_OBJECT

public:
    explicit PhaseColorPalette(QWidget *parent = nullptr);

    void setColors(const QVector<QColor> &colors);
    const QVector<QColor> &colors() const { return m_colors; }
    /// The box in the frame; -1: none.
    void setChosen(int index);
    int chosen() const { return m_chosen; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVector<QColor> m_colors;
    int m_chosen = -1;
};
