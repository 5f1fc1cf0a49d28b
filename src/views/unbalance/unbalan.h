#pragma once

#include "pages/viewcontainer.h"

class UnbalanMain;
class UnbalVectorPage;

/// Unbalance: the table of fundamentals with the sequence components, and the phasor diagram.
class unbalan : public ViewContainer
{
    Q_OBJECT

public:
    explicit unbalan(const LiveData &data, QWidget *parent = nullptr);

    void enterUnbalan() { enterFirstPage(); }
    QByteArray pqaData() const override;

public slots:
    void showUnbalanMain();
    void showUnbalanVector();

private:
    UnbalanMain *m_main;
    UnbalVectorPage *m_vector;
};
