#include "views/recorder/recordpqa2page.h"

#include "views/recorder/loggerparampage.h"
#include "views/recorder/recordingparam.h"
#include "views/recorder/recordingsetup.h"
#include "views/recorder/recordingstart.h"

std::vector<ViewContainer::Way> RecordingPage::setupWays()
{
    return { way(&RecordingSetup::goRecordParam, Param),
             pass(&RecordingSetup::startWithRecord, &RecordingPage::startRecordTask),
             way(&RecordingSetup::startWithRecord, Start) };
}

std::vector<ViewContainer::Way> RecordingPage::startWays()
{
    return { way(&RecordingStart::goRecordSetup, Setup, &RecordingPage::beginSetup),
             pass(&RecordingStart::stopRecordWithSave, &RecordingPage::stopRecordWithSave),
             pass(&RecordingStart::restartRecord, &RecordingPage::startRecordTask) };
}

void RecordingPage::enter()
{
    if (*m_kind.active) {
        showPage(Start);
        return;
    }
    beginSetup();
    showPage(Setup);
}

QByteArray RecordingPage::pqaData() const
{
    __record_pqa_data data
        = { *m_kind.active, *m_kind.begin, *m_kind.duration, m_kind.interval(), *m_kind.choices, {} };
    qstrncpy(data.name, m_kind.name->toUtf8().constData(), sizeof data.name);
    return QByteArray(reinterpret_cast<const char *>(&data), sizeof data);
}

void RecordingPage::beginSetup()
{
    static_cast<RecordingSetup *>(page(Setup))->beginSetup();
}

void RecordingPage::aboutToShow(int row)
{
    if (row == Setup)
        static_cast<RecordingSetup *>(page(Setup))->checkRoom(); // other things may have been chosen
    else if (row == Param)
        page(Param)->init_parameter(); // what was not stored is gone
}

void RecordingPage::showPlan(qint64 begin, qint64 end)
{
    static_cast<RecordingStart *>(page(Start))->showPlan(begin, end);
}

void RecordingPage::recordingStoped()
{
    if (auto *start = made<RecordingStart>(Start))
        start->recordingStoped();
}

RecordingPage::RecordingPage(const LiveData &data, const RecordingKind &kind, const Makers &makers, QWidget *parent)
    : ViewContainer(UI_LOGGER, { 26, "Logger" }, data,
                    {
                        { makers.setup, setupWays() },
                        { makers.param, { way(&RecordingParam::goRecordSetup, Setup) } },
                        { makers.start, startWays() },
                    },
                    parent),
      m_kind(kind)
{ }

RecordPqa2Page::RecordPqa2Page(const LiveData &data, QWidget *parent)
    : RecordingPage(data, RecordingKind::recorder(),
                    { make<RecordPqa2Setup>, make<RecordPqa2Param>, make<RecordPqa2Start> }, parent)
{ }

LoggerPage::LoggerPage(const LiveData &data, QWidget *parent)
    : RecordingPage(data, RecordingKind::logger(), { make<LoggerSetup>, make<LoggerParamPage>, make<LoggerStarPage> },
                    parent)
{ }
