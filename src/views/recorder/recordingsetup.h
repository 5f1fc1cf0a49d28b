#pragma once

#include "pages/editorpage.h"
#include "pages/starttime.h"
#include "views/recorder/recordingkind.h"

/// Set-up of a recording: its name, how long it lasts, at which interval values are written, when it begins; below,
/// the room that there is and how long it would last. Every change counts at once.
class RecordingSetup : public EditorPage
{
    Q_OBJECT

public:
    /// A new recording is to be planned: it begins at once unless the user says otherwise, under a name that is free.
    void beginSetup();
    /// The room, by what is chosen now.
    void checkRoom();

public slots:
    void retranslateUi() override;
    /// The time of a recording that has ended is no business of the next one.
    void stopWatchChanged(const QString &) override { }

signals:
    void goRecordParam();
    /// The choices stand; the recording is to begin as they say.
    void startWithRecord();

protected:
    /// \a kind outlives the page.
    RecordingSetup(const char *title, const RecordingKind &kind, QWidget *parent);

    /// To be called once, by the page itself: the title is translated by its class.
    void setUp();

private:
    std::vector<Row> rows();
    void changeToNext() { selectNext(); }
    void editName();
    void stepInterval(int step);
    void initBegainTime();
    void start();

    const RecordingKind &m_kind;
    StartTime m_start;
    bool m_named = false; // by the user, not by default
};

/// Set-up of the recorder.
class RecordPqa2Setup : public RecordingSetup
{
    Q_OBJECT

public:
    explicit RecordPqa2Setup(QWidget *parent = nullptr);
};

/// Set-up of the logger of text files.
class LoggerSetup : public RecordingSetup
{
    Q_OBJECT

public:
    explicit LoggerSetup(QWidget *parent = nullptr);
};
