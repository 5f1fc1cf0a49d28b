#pragma once

#include "model/livedata.h"
#include "views/transients/transscopepage.h"

/// Live voltages while transients are being waited for, with the threshold in force and the number captured.
class TranStart : public TransScopePage
{
    Q_OBJECT

public:
    explicit TranStart(const LiveData &data, QWidget *parent = nullptr);

    void showCount();

public slots:
    void updateDisplay(void *) override;
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goTransView();

protected:
    void setPageKeys() override;

private:
    const LiveData &m_data;
};
