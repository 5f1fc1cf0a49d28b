#pragma once

#include "pages/viewcontainer.h"

class UnbalanMain;
class UnbalVectorPage;

/// Unbalance: the table of fundamentals with the sequence components, and the phasor diagram.
class unbalan : public ViewContainer
{
    Q_OBJECT

public:
    explicit unbalan(QWidget *parent = nullptr);

    void enterUnbalan() { enterFirstPage(); }
    QByteArray pqaData() const override;

public slots:
    void showUnbalanMain();
    void showUnbalanVector();

protected:
    void initDisplayParam() override;

private:
    UnbalanMain *m_main;
    UnbalVectorPage *m_vector;
};
