#include "setup/setupkfactor.h"

namespace {
constexpr char kMethod[] = "KFACTOR_METHOD";
constexpr char kE[] = "KFACTOR_E";
constexpr char kQ[] = "KFACTOR_Q";
constexpr int kEuropean = 1;
}

SetupKFactor::SetupKFactor(QWidget *parent)
    : SetupEditor(DefaultBack, { QT_TRANSLATE_NOOP("SetupKFactor", "Harmonics") }, { kMethod, kE, kQ }, paceOf(kE),
                  parent)
{
    const auto european = [this] { return draft().whole(kMethod) == kEuropean; };
    const auto two = [](double value) { return QString::number(value, 'f', 2); };
    std::vector<Row> rows = {
        draft().row("method", QT_TRANSLATE_NOOP("SetupKFactor", "K-factor method:"), kMethod,
                    [european](double) { return european() ? QStringLiteral("EU") : QStringLiteral("US"); }),
        draft().row("e", QT_TRANSLATE_NOOP("SetupKFactor", "K-factor par. e:"), kE, two),
        draft().row("q", QT_TRANSLATE_NOOP("SetupKFactor", "K-factor par. q:"), kQ, two),
    };
    rows[1].enabled = rows[2].enabled = european;
    setRows(rows);
    setNoKeys();
}
