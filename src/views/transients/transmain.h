#pragma once

#include "pages/editorpage.h"

/// Set-up of the transient capture: the threshold, 1 to 6000 percent, changed by left and right in steps that grow
/// while the key is held. Every change is stored at once; the processor learns it at the start.
class TransMain : public EditorPage
{
    Q_OBJECT

public:
    explicit TransMain(QWidget *parent = nullptr);

    /// Whether the threshold changed since the last call.
    bool takeChanged();
    /// Kept: its picture carries another number than the function's.
    SaveIdentity saveIdentity() const override { return { 7, "Trans" }; }

signals:
    void goTranStart();

private:
    void restoreDefaults();

    bool m_changed = false;
};
