#include "widgets/text/textrecorder.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

/// Takes down the texts that are painted on it, and nothing else.
class TextRecorder : public QPaintDevice
{
public:
    explicit TextRecorder(QSize size) : m_size(size) { }
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const QVector<PaintedText> &texts() const { return m_engine.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine() : QPaintEngine(AllFeatures) { }
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState &state) override
        {
            if (state.state() & DirtyTransform)
                m_transform = state.transform();
        }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
        void drawPath(const QPainterPath &) override { }
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override { }
        void drawTextItem(const QPointF &place, const QTextItem &item) override
        {
            // Across, as it was laid out; upright, what the signs cover: lines stand closer than their fonts are high.
            QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text());
            ink.setLeft(0);
            ink.setWidth(item.width());
            if (!ink.isEmpty())
                texts.append({ item.text(), m_transform.mapRect(ink.translated(place)), {} });
        }

        QVector<PaintedText> texts;

    private:
        QTransform m_transform;
    };

    const QSize m_size;
    mutable Engine m_engine;
};

} // namespace

QVector<PaintedText> textsPaintedBy(QWidget *widget)
{
    TextRecorder recorder(widget->size());
    if (!widget->size().isEmpty())
        widget->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    QVector<PaintedText> texts = recorder.texts();
    for (PaintedText &text : texts)
        text.room = widget->rect();
    return texts;
}
