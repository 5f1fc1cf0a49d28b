#pragma once

#include "pages/editorpage.h"

/// Set-up of the inrush capture: the levels of the detector, the length of the trend, and whether the processor is
/// armed at the start. Every change is stored at once; the detector takes the levels when its task begins.
class InrushMain : public EditorPage
{
    Q_OBJECT

public:
    explicit InrushMain(QWidget *parent = nullptr);

    bool switchOn() const { return m_switchOn; }

signals:
    void goInrushStart();

private:
    void initInrushMain();

    bool m_switchOn = true;
};
