#pragma once

#include "setup/setupeditor.h"

/// Choice of the lamp whose curve weights the flicker.
class SetupFlicker : public SetupEditor
{
    Q_OBJECT

public:
    explicit SetupFlicker(QWidget *parent = nullptr);
};
