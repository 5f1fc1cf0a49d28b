#pragma once

#include "pages/functionpage.h"
#include "pages/scopereadout.h"

#include <memory>
#include <vector>

namespace Ui {
class ScopeForm;
}
class ScopeWidget;
class SoftKeyButton;

/// A page with a scope picture, its cursor and its zoom: F3 and F4 switch them, the arrows left and right lead the
/// cursor, up and down zoom. Below the picture stand the values under the cursor or, without it, the r.m.s. values. A
/// page's own file holds the line of labels above the picture, what is drawn, and its own keys.
class ScopeFormPage : public FunctionPage
{
    Q_OBJECT

public slots:
    /// A run begins: cursor on and at the left edge, zoom on.
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// A label above the picture.
    struct HeadLabel
    {
        const char *name;
        int left;
        int width;
        int line = 1; // 1 or 2
        bool aside = false; // small and grey, at the right end of its place
    };

    /// A sub page has an empty \a identity: its container saves.
    ScopeFormPage(_quvera_ui_type type, SaveIdentity identity, QWidget *parent);
    ~ScopeFormPage() override;

    /// To be called once, in the constructor. Two lines above the picture, in which labels of the second line and the
    /// zoom stand lower, leave it lower, too. Without \a firstKey the key F1 has a plain caption.
    template <std::size_t N> void setUp(const HeadLabel (&head)[N], SoftKeyButton *firstKey = nullptr)
    {
        setUp(std::vector<HeadLabel>(head, head + N), firstKey);
    }
    QLabel *headLabel(const char *name) const;

    /// Sets the table of the page's own keys; the ones of cursor and zoom join it, as these stand.
    virtual void setPageKeys() = 0;
    std::vector<FrontKeys::Row> commonKeys() override;
    /// Left (-1) or right (1) with the cursor off and the zoom on.
    virtual void zoomTime(int) { }
    /// What the picture shows: a ScopeReadout::Mode.
    virtual int mode() const { return ScopeReadout::Voltages; }
    /// Curves and captions for the mode in force.
    virtual void showMode();
    virtual void showCurVal();
    /// Draws drawn().
    void showPicture();
    /// What the chart draws, and the readout reads.
    __scope_data_ui &drawnData() { return *m_drawn; }
    const __scope_data_ui &drawnData() const { return *m_drawn; }

    /// Sample under the cursor, 0 to 599.
    int cursorIndex() const;
    void setCursorIndex(int index);
    /// The zoom at which the nominal values of the settings fill the grid.
    void defaultZoom();

private:
    void setUp(const std::vector<HeadLabel> &head, SoftKeyButton *firstKey);
    void addHead(const HeadLabel &label, int lines);
    void addFirstKey(SoftKeyButton *button);
    void toggleCursor();
    void toggleZoom();
    void stepCursor(int step);
    void shortenTime() { zoomTime(-1); }
    void lengthenTime() { zoomTime(1); }
    void zoomIn();
    void zoomOut();
    void showSwitches();
    void showScale();

    const std::unique_ptr<__scope_data_ui> m_drawn; // the chart keeps its address
    std::unique_ptr<Ui::ScopeForm> m_ui;
    std::unique_ptr<ScopeReadout> m_readout;
    bool m_cursorOn = true;
    bool m_zoomOn = false;
};
