#pragma once

#include "views/recorder/loggerparams.h"
#include "views/recorder/recordingparam.h"

/// What the logger of text files writes.
class LoggerParamPage : public RecordingParam
{
    Q_OBJECT

public:
    explicit LoggerParamPage(QWidget *parent = nullptr);

    SaveIdentity saveIdentity() const override { return { 26, "Params" }; }

protected:
    bool offers(const Box &box) const override;
    void load() override;

private:
    LoggerParams m_params;
};
