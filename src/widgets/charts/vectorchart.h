#pragma once

#include <QWidget>

/// Polar chart of six phasors, three voltages and three currents, with rings at a third and two thirds of the radius
/// and spokes every 30 degrees. Angles in degrees, counted counter-clockwise from the right. GUI thread.
class VectorChart : public QWidget
{
public:
    explicit VectorChart(QWidget *parent = nullptr);

    void setAngleU1(double angle, bool visible) { setVector(0, angle, visible); }
    void setAngleU2(double angle, bool visible) { setVector(1, angle, visible); }
    void setAngleU3(double angle, bool visible) { setVector(2, angle, visible); }
    void setAngleA1(double angle, bool visible) { setVector(3, angle, visible); }
    void setAngleA2(double angle, bool visible) { setVector(4, angle, visible); }
    void setAngleA3(double angle, bool visible) { setVector(5, angle, visible); }
    double angleU1() const { return m_vector[0].angle; }
    double angleU2() const { return m_vector[1].angle; }
    double angleU3() const { return m_vector[2].angle; }
    double angleA1() const { return m_vector[3].angle; }
    double angleA2() const { return m_vector[4].angle; }
    double angleA3() const { return m_vector[5].angle; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int kVectors = 6; // U1, U2, U3, A1, A2, A3

    struct Vector
    {
        double angle = 0;
        bool visible = false;
    };

    void setVector(int index, double angle, bool visible);
    void drawLabels(QPainter &painter, int radius) const;
    void drawRings(QPainter &painter, int radius) const;
    void drawVectors(QPainter &painter, int radius) const;

    Vector m_vector[kVectors];
};
