#pragma once

#include "setup/setupeditor.h"

/// How the K-factor is worked out: by the European method, which has two parameters, or by the American one.
class SetupKFactor : public SetupEditor
{
    Q_OBJECT

public:
    explicit SetupKFactor(QWidget *parent = nullptr);
};
