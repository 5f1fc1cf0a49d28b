#pragma once

#include "setup/setupeditor.h"

/// Levels of the inrush detector and the length of its trend.
class SetupInrush : public SetupEditor
{
    Q_OBJECT

public:
    explicit SetupInrush(QWidget *parent = nullptr);

    SaveIdentity saveIdentity() const override { return { 7, "Inrush" }; }

protected:
    void load() override;
    void store() override;
};
