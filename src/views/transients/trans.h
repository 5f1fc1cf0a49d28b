#pragma once

#include "pages/viewcontainer.h"

class TranStart;
class TransMain;
class TransView;

/// Transients: the threshold of the capture, the live voltages, and the transients captured so far.
class trans : public ViewContainer
{
    Q_OBJECT

public:
    explicit trans(const LiveData &data, QWidget *parent = nullptr);

    /// Number of transients and bytes of one (4 bytes each), then the captured transients, oldest first, each as its
    /// fields stand in order (4,836 bytes).
    QByteArray pqaData() const override;

public slots:
    /// The list of transients changed.
    void hasTransEvents();
    void showTransMain();
    /// Sends a changed threshold to the processor and shows the live voltages.
    void startCapture();
    void showTranStart();
    void showTransView();

signals:
    void startTransTask();

protected:
    bool pressKey(int key) override;

private:
    TransMain *m_main;
    TranStart *m_start;
    TransView *m_view;
};
