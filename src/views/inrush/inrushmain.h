#pragma once

#include "pages/livepage.h"

#include <memory>

namespace Ui {
class InrushMain;
}
class KeyRepeat;

/// Set-up of the inrush capture: the levels of the detector, the length of the trend, and whether the processor is
/// armed at the start. Up and down choose a field, left and right change it, held down in growing steps. Every change
/// is stored at once; the detector takes the levels when its task begins.
class InrushMain : public LivePage
{
    Q_OBJECT

public:
    explicit InrushMain(QWidget *parent = nullptr);
    ~InrushMain() override;

    bool switchOn() const { return m_switchOn; }
    int field() const { return m_field; } // 0 to 4, from the top

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goInrushStart();

protected:
    void releaseKey(int key) override;

private:
    /// A row of the page: its labels <name>_t and <name>, and what left (negative steps) and right do to it.
    struct Field
    {
        const char *name;
        const char *caption;
        void (InrushMain::*change)(int step);
        QString (*text)(const InrushMain &page);
    };
    static const Field kFields[5];

    void initInrushMain();
    void changeToPrev();
    void changeToNext();
    void handleKeyLeft();
    void handleKeyRight();
    void changeField(int step);
    void changeNomAmps(int step);
    void changeThreshold(int step);
    void changeHysteresis(int step);
    void changeDuration(int step);
    void changeSwitch(int step);
    void showFields();
    void showSelection();

    std::unique_ptr<Ui::InrushMain> m_ui;
    KeyRepeat *m_repeat;
    int m_field = 0;
    bool m_switchOn = true;
};
