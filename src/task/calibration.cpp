#include "task/calibration.h"

#include "device/aggregationpayload.h"
#include "device/deviceinit.h"
#include "device/idevice.h"
#include "settings/config_data.h"

#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

// Kept: a run that was cancelled leaves count and filter to the next one.
int Calibration::s_zeroCount = 0;
float Calibration::s_zero[8] = {};
int Calibration::s_basicCount = 0;

namespace {

enum { CalNone = 0, CalZero = 1, CAL_V0 = 2, CAL_I0 = 6 };

constexpr unsigned long kSettleMs = 100; // before the stream of a run begins
constexpr int kZeroDatagrams = 50; // until the first stage; each further stage takes one more
constexpr int kSettleDatagrams = 49; // of a gain run
constexpr int kSumDatagrams = 50;

/// A stage of the zero run: what it fills, and the pause before the next one.
struct ZeroStage
{
    int voltRow;
    int currentRow; // crossed as the switches are: switch 1 is row 2
    unsigned long pauseMs;
};
constexpr ZeroStage kZeroStages[] = { { 0, 0, 200 }, { 1, 2, 50 }, { 2, 1, 50 }, { 3, 3, 0 } };
constexpr int kLastStage = int(std::size(kZeroStages)) - 1;

/// Volts by row of the gains, which is the voltage switch as well.
constexpr int kVolts[] = { Calibration::Volt120, Calibration::Volt220, Calibration::Volt400, Calibration::Volt600 };

struct CurrentRun
{
    int millivolts;
    int type;
    int zeroCurrentRow;
    int analogSwitch;
};
constexpr CurrentRun kCurrentRuns[]
    = { { 100, CAL_I0 + 2, 1, 1 }, { 100, CAL_I0 + 1, 0, 2 }, { 65, CAL_I0 + 3, 2, 3 } };
constexpr CurrentRun kOtherCurrentRun = { 100, CAL_I0 + 1, 3, 2 };

/// A float of the four channels' stretches; false when the datagram ends before it.
bool readChannels(const QByteArray &datagram, int offset, float (&values)[4])
{
    for (int k = 0; k < 4; ++k) {
        const int at = AggregationPayload::channelWord(k, offset) * int(sizeof(float));
        if (datagram.size() < at + int(sizeof(float)))
            return false;
        std::memcpy(&values[k], datagram.constData() + at, sizeof(float));
    }
    return true;
}

float cleaned(float value)
{
    constexpr float kInsteadOfNaN = 10.0f;
    if (std::isnan(value))
        return kInsteadOfNaN;
    return std::isinf(value) ? 0.0f : value;
}

/// 0 for what would be infinite.
float quotient(float dividend, float divisor)
{
    const float value = divisor == 0.0f ? 0.0f : dividend / divisor;
    return std::isinf(value) ? 0.0f : value;
}

} // namespace

Calibration::Calibration(QObject *parent)
    : AbstractTask(parent), m_calibfile(std::make_unique<CalibFile>()), m_joinMode(m_settingConfig_g.getJoinMode())
{
    if (m_idevice) {
        connect(m_idevice, &IDevice::datagramAggregation, this, [this](const QByteArray &datagram) {
            if (m_receiver)
                (this->*m_receiver)(datagram);
        });
        connect(m_idevice, &IDevice::reopened, this, &Calibration::linkCameBack);
    }
    DeviceInit::change2CalibMode();
}

Calibration::~Calibration()
{
    DeviceInit::stopDataStream();
    m_settingConfig_g.setJoinMode(m_joinMode);
}

QString Calibration::getTaskName()
{
    return tr("Calibration");
}

void Calibration::save(bool keep)
{
    if (keep)
        m_calibfile->save();
    m_calib_data_g.load();
    m_settingConfig_g.followSettings();
    DeviceInit::initAnalogDevice2();
}

/// The node that was lost and came back has been set up for measuring: calibration mode again, and the run from its
/// beginning, for what it measured meanwhile belongs to other ranges.
void Calibration::linkCameBack()
{
    const bool running = m_receiver;
    stopReceiving();
    DeviceInit::change2CalibMode();
    if (!running)
        return;
    s_zeroCount = 0;
    s_basicCount = 0;
    m_cal_type == CalZero ? beginZero() : beginGains();
}

void Calibration::receive(Receiver receiver)
{
    DeviceInit::startDataStream();
    m_receiver = receiver;
}

void Calibration::stopReceiving()
{
    DeviceInit::stopDataStream();
    m_receiver = nullptr;
}

void Calibration::complete()
{
    stopReceiving();
    emit Completed();
}

void Calibration::startCalibZero()
{
    m_cal_type = CalZero;
    beginZero();
}

void Calibration::beginZero()
{
    float none[4] = { 0, 0, 0, 0 };
    m_stage = 0;
    DeviceInit::changeCalibZero(none, none);
    if (m_idevice) {
        m_idevice->changeAnalogSwitchI(0);
        m_idevice->changeAnalogSwitchV(0);
    }
    QThread::msleep(kSettleMs);
    receive(&Calibration::newDataZero);
}

/// NaN passes: an input that gives no number has no offset.
void Calibration::newDataZero(const QByteArray &datagram)
{
    float volts[4], currents[4];
    if (!readChannels(datagram, AggregationPayload::kVoltageOffset, volts)
        || !readChannels(datagram, AggregationPayload::kCurrentOffset, currents))
        return;
    if (s_zeroCount == 0) {
        std::copy_n(volts, 4, s_zero);
        std::copy_n(currents, 4, s_zero + 4);
        s_zeroCount = 1;
        return;
    }
    for (int k = 0; k < 8; ++k) {
        const float now = k < 4 ? volts[k] : currents[k - 4];
        s_zero[k] = static_cast<float>(0.09 * double(now) + 0.91 * double(s_zero[k]));
    }
    ++s_zeroCount;
    // Not counted anew from stage to stage: each one behind the first takes a single datagram.
    if (s_zeroCount >= kZeroDatagrams)
        storeZeroStage();
}

void Calibration::storeZeroStage()
{
    const ZeroStage &stage = kZeroStages[m_stage];
    __calib_data &data = m_calibfile->data();
    std::copy_n(s_zero, 4, data.zeroVolt[stage.voltRow]);
    std::copy_n(s_zero + 4, 4, data.zeroCurrent[stage.currentRow]);
    if (m_stage == kLastStage) {
        m_stage = -1;
        complete();
        s_zeroCount = 0;
        return;
    }
    ++m_stage;
    stopReceiving();
    if (m_idevice) {
        m_idevice->changeAnalogSwitchI(m_stage);
        m_idevice->changeAnalogSwitchV(m_stage);
    }
    QThread::msleep(stage.pauseMs);
    receive(&Calibration::newDataZero);
}

void Calibration::startCalibVolt(CAL_VOLT volts, int channel)
{
    const int row = int(std::find(std::begin(kVolts), std::end(kVolts), int(volts)) - std::begin(kVolts));
    if (row == int(std::size(kVolts)))
        return;
    m_cal_volt = volts;
    m_cal_type = CAL_V0 + row;
    m_cur_chanel = channel;
    m_setUp = { row, 0, &IDevice::changeAnalogSwitchV, row };
    beginGains();
}

void Calibration::startCalibCurrent(CAL_CURRENT input, int channel)
{
    const bool known = input >= 0 && input < int(std::size(kCurrentRuns));
    const CurrentRun &run = known ? kCurrentRuns[input] : kOtherCurrentRun;
    m_cal_cur = run.millivolts;
    m_cal_type = run.type;
    m_cur_chanel = channel;
    m_setUp = { 1, run.zeroCurrentRow, &IDevice::changeAnalogSwitchI, run.analogSwitch };
    beginGains();
}

void Calibration::beginGains()
{
    __calib_data &data = m_calibfile->data();
    DeviceInit::changeCalibZero(data.zeroVolt[m_setUp.zeroVoltRow], data.zeroCurrent[m_setUp.zeroCurrentRow]);
    if (m_idevice)
        (m_idevice->*m_setUp.changeSwitch)(m_setUp.switchValue);
    m_counter = 0;
    std::fill(std::begin(m_cal_sum), std::end(m_cal_sum), 0.0f);
    QThread::msleep(kSettleMs);
    receive(&Calibration::newDataBasic);
}

void Calibration::newDataBasic(const QByteArray &datagram)
{
    float values[4];
    const bool voltage = m_cal_type >= CAL_V0 && m_cal_type < CAL_I0;
    if (!readChannels(datagram, voltage ? AggregationPayload::kVoltage : AggregationPayload::kCurrent, values))
        return;
    if (++s_basicCount <= kSettleDatagrams)
        return;
    if (m_counter < kSumDatagrams) {
        ++m_counter;
        for (int k = 0; k < 4; ++k)
            m_cal_sum[k] += cleaned(values[k]);
        return;
    }
    // The datagram that finds them complete only ends the run.
    storeGains();
    m_cal_type = CalNone;
    complete();
    s_basicCount = 0;
}

void Calibration::storeGains()
{
    const bool voltage = m_cal_type < CAL_I0;
    __calib_data &data = m_calibfile->data();
    float(&row)[4] = voltage ? data.volt[m_cal_type - CAL_V0] : data.current[m_cal_type - CAL_I0];
    const auto reference = static_cast<float>(voltage ? m_cal_volt : m_cal_cur);
    for (int k = 0; k < 4; ++k) {
        m_cal_sum[k] = quotient(m_cal_sum[k], kSumDatagrams);
        if (m_cur_chanel == AllChannels || m_cur_chanel == k + 1)
            row[k] = quotient(reference, m_cal_sum[k]);
    }
}
