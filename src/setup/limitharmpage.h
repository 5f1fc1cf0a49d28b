#pragma once

#include "setup/limitdraft.h"
#include "setup/limitfields.h"
#include "setup/linelist.h"

/// The harmonic rows of a limit set: share of time, limit for it, limit for all the time. Ok takes them over into the
/// draft.
class LimitHarmPage : public LineList
{
    Q_OBJECT

public:
    /// \a draft outlives the page.
    explicit LimitHarmPage(LimitDraft &draft, QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void stored();
    void cancelled();

protected:
    QString title() const override;
    int lineCount() const override { return HarmonicLimits::rows(m_limit); }
    Line line(int index) const override;
    int markedColumn() const override { return m_column; }
    void lineChosen() override;

private:
    void nextColumn();
    void changeValue(int steps);
    void ok();
    void cancel();

    LimitDraft &m_draft;
    monitor_limit m_limit; // working copy
    HarmonicLimits::Column m_column = HarmonicLimits::Upper1;
};
