#pragma once

#include "pages/viewcontainer.h"

class Clamp;

/// The set-up of clamps and ratios: the page that chooses, and the editor of a user's clamp. Both work on one draft; it
/// begins anew each time this comes on top.
class SetupClamps : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Choice, Editor };

    explicit SetupClamps(const LiveData &data, QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void closed(); // stored or cancelled

private:
    void beginAdding();
    void beginEditing();
    void takeClamp();

    bool m_adding = false; // the editor makes a new clamp
};
