#pragma once

#include "task/abstracttask.h"

#include <QByteArray>

#include <memory>

class CalibFile;
class IDevice;

/// Measures the constants of calibration.dat from aggregation datagrams: zero offsets with open inputs, gains with
/// known volts and amperes at them (docs/calibration.md). While it lives the processor is in calibration mode. It works
/// on a block of its own; save() ends the calibration and puts what the file then holds into use. One run at a time; it
/// says Completed() at its end. GUI thread, which it holds for up to 200 ms while ranges settle. Values are not
/// checked.
class Calibration : public AbstractTask
{
    Q_OBJECT

public:
    /// Volts at the voltage inputs.
    enum CAL_VOLT { Volt120 = 120, Volt220 = 220, Volt400 = 400, Volt600 = 600 };
    /// Kind of current input.
    enum CAL_CURRENT { Input1mV = 0, Input10mV = 1, Input65mV = 2 };
    enum { AllChannels = 0, ChannelL1 = 1, ChannelL2 = 2, ChannelL3 = 3, ChannelN = 4 };

    /// Switches the processor to calibration mode.
    explicit Calibration(QObject *parent = nullptr);
    /// Stops the stream and gives the wiring back as it was at the beginning.
    ~Calibration() override;

    QString getTaskName() override;
    /// \a keep: writes the block to the file. Then, in any case, the file's values are put into use and the processor
    /// is set up by them.
    void save(bool keep) override;
    void updatedata() override { }

    /// Offsets of all ranges; 53 datagrams.
    void startCalibZero();
    /// Gains of one range; 100 datagrams. \a channel: AllChannels, or the one that is stored.
    void startCalibVolt(CAL_VOLT volts, int channel);
    void startCalibCurrent(CAL_CURRENT input, int channel);

    /// The block under way.
    CalibFile &file() { return *m_calibfile; }

signals:
    void Completed();

private:
    using Receiver = void (Calibration::*)(const QByteArray &);
    /// Rows of offsets and the switch that a gain run is set up with.
    struct GainSetUp
    {
        int zeroVoltRow = 0;
        int zeroCurrentRow = 0;
        void (IDevice::*changeSwitch)(int) = nullptr;
        int switchValue = 0;
    };

    void beginZero();
    void beginGains();
    void receive(Receiver receiver);
    void stopReceiving();
    void complete();
    void linkCameBack();
    void newDataZero(const QByteArray &datagram);
    void storeZeroStage();
    void newDataBasic(const QByteArray &datagram);
    void storeGains();

    std::unique_ptr<CalibFile> m_calibfile;
    int m_cal_volt = 0; // V
    int m_cal_cur = 0; // mV of the clamp
    int m_cal_type = 0; // 1: zero; 2 to 5: row of voltage gains; 6 to 9: row of current gains
    int m_stage = -1; // of the zero run; -1: idle
    int m_counter = 0; // datagrams summed up
    float m_cal_sum[4] = { 0, 0, 0, 0 }; // converter units
    int m_cur_chanel = AllChannels;
    const int m_joinMode;
    GainSetUp m_setUp;
    Receiver m_receiver = nullptr; // takes the datagrams of the run; null between runs

    // They outlive the procedure: a run that was cancelled leaves them to the next one.
    static int s_zeroCount; // datagrams of the zero run
    static float s_zero[8]; // filtered offsets, four voltages and four currents, converter units
    static int s_basicCount; // datagrams of a gain run
};
