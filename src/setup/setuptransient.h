#pragma once

#include "setup/setupeditor.h"

/// The level above which a transient is captured.
class SetupTransient : public SetupEditor
{
    Q_OBJECT

public:
    explicit SetupTransient(QWidget *parent = nullptr);
};
