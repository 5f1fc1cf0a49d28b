#pragma once

#include "pages/viewcontainer.h"

/// Flicker: the table of severities and the trend of the instantaneous sensation.
class flicker : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Trend };

    explicit flicker(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

public slots:
    void retranslateUi() override;

protected:
    void aboutToShow(int) override { showTitle(); }

private:
    void showTitle();
};
