#pragma once

#include "setup/setupeditor.h"

/// The two frequencies of mains signalling and the levels at which they are detected.
class SetupMainsSig : public SetupEditor
{
    Q_OBJECT

public:
    explicit SetupMainsSig(QWidget *parent = nullptr);
};
