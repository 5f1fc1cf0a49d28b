#pragma once

#include "model/displayrecords.h"

#include <QPainterPath>
#include <QWidget>

#include <memory>

/// Oscilloscope picture of up to eight waveforms of 600 raw samples, with a cursor and thirteen zoom steps. It is
/// passive: it paints its own copy of what it was last given. Made for 601 by 318 pixels. GUI thread.
class ScopeWidget : public QWidget
{
public:
    explicit ScopeWidget(QWidget *parent = nullptr);

    /// Copies the record and rebuilds the paths; a null pointer changes nothing.
    void showScopeData(const __scope_data_ui *data);

    /// Curves shown: bits 0 to 3 the voltages L1, L2, L3, N, bits 4 to 7 the currents.
    void setFlags(quint8 flags);
    quint8 flags() const { return m_flags; }

    void setCursorOn(bool on);
    bool cursorOn() const { return m_cursorOn; }
    /// Puts the cursor on the sample `index`; it stands one pixel further right, from 1 to the width - 1.
    void setCursorPosition(int index);
    int cursorPosition() const { return m_cursor; } // pixels from the left, from 1

    /// Scale from the samples themselves: the highest one nearly fills the grid.
    void setDefaultZoom();
    /// Scale from full-scale values in raw units.
    void setDefaultZoom(double fullU, double fullI);
    /// Scale from nominal values (V, A) and the channels' calibration coefficients (V or A per converter volt).
    void setDefaultZoom(float Vnom, float Ucoefficient, float Inom, float Icoefficient);
    /// One step in or out; at the last step nothing changes but the paths are built again.
    void setZoomNext();
    void setZoomPrev();
    /// Works out pixels per unit from the full-scale values and the zoom step, and rebuilds the paths.
    void setScale();

    static constexpr int kZooms = 13;
    int getZoomIndex() const { return m_zoomIndex; } // 0 to 12; 6 is 1X
    double zoomFactor() const;
    static const char *zoomText(int index); // "1/32X" to "32X"
    float getScaleU() const { return m_scaleU; } // pixels per raw unit
    float getScaleI() const { return m_scaleI; }
    double fullU() const { return m_fullU; } // raw units that reach 146 pixels at 1X
    double fullI() const { return m_fullI; }

    /// Pixel row of a raw sample, counted from the top.
    int getCursorPosUY(int sample) const;
    int getCursorPosIY(int sample) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int kCurves = 8;

    const qint16 *samples(int curve) const;
    float scaleOf(int curve) const;
    void getSubmultiple();
    void initLinePath();
    void drawGrid(QPainter &painter) const;
    void drawScaleLabels(QPainter &painter) const;
    void drawCurves(QPainter &painter) const;
    void drawCursorMarks(QPainter &painter) const;

    bool m_cursorOn = true;
    quint8 m_flags = 255;
    std::unique_ptr<__scope_data_ui> m_data;
    int m_cursor = 20;
    int m_zoomIndex = 6;
    float m_scaleU = 1;
    float m_scaleI = 1;
    int m_Unom = 0; // V, for the scale labels
    int m_Inom = 0; // A
    double m_fullU = 1;
    double m_fullI = 1;
    QPainterPath m_path[kCurves];
};
