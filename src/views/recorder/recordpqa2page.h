#pragma once

#include "pages/viewcontainer.h"
#include "views/recorder/recordingkind.h"

/// What a saved data file holds of a recording (84 bytes).
struct __record_pqa_data
{
    qint32 active; // 1: prepared or running
    quint32 begin; // s since 1970; 0: at once
    qint32 duration; // h
    qint32 interval; // s
    quint32 choices; // bits of what is written
    char name[64]; // UTF-8, the rest zeros
};
static_assert(sizeof(__record_pqa_data) == 84);

/// Recording over hours and days: set-up, choice of what is written, and the recording under way. Values are stored
/// beside the measurement: all live pages stay open to the user.
class RecordingPage : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Setup, Param, Start };

    /// The set-up, unless a recording is prepared or runs.
    void enter() override;
    QByteArray pqaData() const override;
    /// A recording is planned from \a begin to \a end, ms since 1970.
    void showPlan(qint64 begin, qint64 end);

public slots:
    void recordingStoped();

signals:
    /// As the choices say.
    void startRecordTask();
    void stopRecordWithSave(bool keep);

protected:
    struct Makers
    {
        LivePage *(*setup)(const LiveData &);
        LivePage *(*param)(const LiveData &);
        LivePage *(*start)(const LiveData &);
    };

    RecordingPage(const LiveData &data, const RecordingKind &kind, const Makers &makers, QWidget *parent);

    void aboutToShow(int row) override;

private:
    static std::vector<Way> setupWays();
    static std::vector<Way> startWays();
    void beginSetup();

    const RecordingKind &m_kind;
};

/// The recorder.
class RecordPqa2Page : public RecordingPage
{
    Q_OBJECT

public:
    explicit RecordPqa2Page(const LiveData &data, QWidget *parent = nullptr);

    void enterRecordPqa2() { enter(); }
};

/// The logger of text files. No key of this release leads to it.
class LoggerPage : public RecordingPage
{
    Q_OBJECT

public:
    explicit LoggerPage(const LiveData &data, QWidget *parent = nullptr);
};
