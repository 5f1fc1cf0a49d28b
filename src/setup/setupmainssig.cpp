#include "setup/setupmainssig.h"

SetupMainsSig::SetupMainsSig(QWidget *parent)
    : SetupEditor(DefaultOkCancel, { QT_TRANSLATE_NOOP("SetupMainsSig", "Mains Signaling"), 70, 60, 350 },
                  { "MAINSSIG_FREQ1", "MAINSSIG_THRESHOLD1", "MAINSSIG_FREQ2", "MAINSSIG_THRESHOLD2" },
                  paceOf("MAINSSIG_FREQ1"), parent)
{
    // The units stand in the captions.
    const auto hertz = [](double value) { return QString::number(value, 'f', 0); };
    const auto percent = [](double value) { return QString::number(value, 'f', 1); };
    setRows({
        draft().row("freq1", QT_TRANSLATE_NOOP("SetupMainsSig", "Signaling Frequency 1 (Hz)"), "MAINSSIG_FREQ1", hertz),
        draft().row("threshold1", QT_TRANSLATE_NOOP("SetupMainsSig", "Detection Threshold 1 (%)"),
                    "MAINSSIG_THRESHOLD1", percent),
        draft().row("freq2", QT_TRANSLATE_NOOP("SetupMainsSig", "Signaling Frequency 2 (Hz)"), "MAINSSIG_FREQ2", hertz),
        draft().row("threshold2", QT_TRANSLATE_NOOP("SetupMainsSig", "Detection Threshold 2 (%)"),
                    "MAINSSIG_THRESHOLD2", percent),
    });
    setNoKeys();
}
