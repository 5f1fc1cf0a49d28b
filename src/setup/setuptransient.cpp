#include "setup/setuptransient.h"

namespace {
constexpr char kThreshold[] = "TRANS_THRESHOLD";
}

SetupTransient::SetupTransient(QWidget *parent)
    : SetupEditor(OkCancel, { QT_TRANSLATE_NOOP("SetupTransient", "Transients"), 100 }, { kThreshold },
                  paceOf(kThreshold), parent)
{
    setRows({ draft().row("threshold", QT_TRANSLATE_NOOP("SetupTransient", "Threshold"), kThreshold,
                          [](double percent) { return QStringLiteral("%1 %").arg(percent); }) });
    setNoKeys();
}
