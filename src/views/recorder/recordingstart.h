#pragma once

#include "pages/labelgrid.h"
#include "pages/livepage.h"
#include "views/recorder/recordingkind.h"

#include <memory>
#include <vector>

class LiveData;

namespace Ui {
class RecordingStart;
}

/// A recording under way: whether it waits for its start, runs or has ended, its name, its times, and the room that is
/// left for it.
class RecordingStart : public LivePage
{
    Q_OBJECT

public:
    ~RecordingStart() override;

    /// A recording is planned from \a begin to \a end, ms since 1970.
    void showPlan(qint64 begin, qint64 end);
    /// It has ended, by itself or because it was asked to.
    void recordingStoped();

public slots:
    void updateDisplay(void *) override;
    void stopWatchChanged(const QString &text) override;
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goRecordSetup();
    void stopRecordWithSave(bool keep);
    void restartRecord();

protected:
    /// \a data and \a kind outlive the page.
    RecordingStart(const LiveData &data, const RecordingKind &kind, QWidget *parent);

    void showEvent(QShowEvent *event) override;

private:
    enum State { Waiting, Running, Ended };

    void stopOrBack();
    State state() const;
    void showState();
    void showRoom();

    const LiveData &m_data;
    const RecordingKind &m_kind;
    std::unique_ptr<Ui::RecordingStart> m_ui;
    std::vector<LabelGrid::Row> m_rows;
    qint64 m_begin = 0; // ms since 1970
    qint64 m_end = 0;
    bool m_counting = false; // past its start
};

/// The recorder under way.
class RecordPqa2Start : public RecordingStart
{
    Q_OBJECT

public:
    explicit RecordPqa2Start(const LiveData &data, QWidget *parent = nullptr)
        : RecordingStart(data, RecordingKind::recorder(), parent)
    { }
};

/// The logger of text files under way.
class LoggerStarPage : public RecordingStart
{
    Q_OBJECT

public:
    explicit LoggerStarPage(const LiveData &data, QWidget *parent = nullptr)
        : RecordingStart(data, RecordingKind::logger(), parent)
    { }
};
