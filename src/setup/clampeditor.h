#pragma once

#include "pages/editorpage.h"
#include "settings/clamp.h"

/// Makes and changes a user's clamp: name, ratio, range, and whether it is flexible. It changes nothing else: whoever
/// opened it takes the clamp when it is finished.
class ClampEditor : public EditorPage
{
    Q_OBJECT

public:
    explicit ClampEditor(QWidget *parent = nullptr);

    /// Begins with a copy of \a clamp: a default one for a new clamp.
    void begin(const Clamp &clamp);
    /// As edited, with its description.
    const Clamp &clamp() const { return m_clamp; }

signals:
    void finished(); // Ok, with a name that can be one

protected:
    void load() override;

private:
    void editName();
    void editRatio();
    void editRange();
    void changeRangeMax();
    void finish();

    Clamp m_begun; // what Cancel goes back to
    Clamp m_clamp;
    int m_rangeMax;
};
