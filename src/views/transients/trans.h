#pragma once

#include "pages/viewcontainer.h"

/// Transients: the threshold of the capture, the live voltages, and the transients captured so far.
class trans : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Start, View };

    explicit trans(const LiveData &data, QWidget *parent = nullptr);

    /// Number of transients and bytes of one (4 bytes each), then the captured transients, oldest first, each as its
    /// fields stand in order (4,836 bytes).
    QByteArray pqaData() const override;

public slots:
    /// The list of transients changed.
    void hasTransEvents();

signals:
    void startTransTask();

protected:
    void aboutToShow(int row) override;

private:
    /// Sends a changed threshold to the processor before the live voltages are shown.
    void startCapture();
};
