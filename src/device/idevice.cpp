#include "device/idevice.h"

#include "device/controlframe.h"
#include "device/deliveryqueue.h"
#include "device/devicedsp.h"
#include "device/devicegpio.h"
#include "device/deviceinit.h"
#include "device/frameslots.h"
#include "device/trace.h"

#include <QElapsedTimer>
#include <QThread>

IDevice *m_idevice = nullptr;

namespace {

constexpr int kLongestTurn = 20; // ms of results in one go; then the screen and the keys have their turn

using ResultSlot = void (IDevice::*)(__datagramtype, const QByteArray &);
constexpr ResultSlot kResultSlots[] = {
    &IDevice::datagramAggregationSlot, &IDevice::datagramRMS_1_2Slot, &IDevice::datagramTransientSlot,
    &IDevice::datagramWaveSlot,        &IDevice::datagramFlickerSlot, &IDevice::datagramFirmwareInfoSlot,
    &IDevice::datagramUpdateSlot,
};
static_assert(std::size(kResultSlots) == kDatagramKindCount, "one slot per kind");

} // namespace

IDevice::IDevice(QObject *parent)
    : QObject(parent), m_results(std::make_unique<DeliveryQueue>()),
      m_version(new QString(QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:None;")))
{
    qRegisterMetaType<__datagramtype>("DataGramType");
    qRegisterMetaType<__datagramtype>("__datagramtype");
    m_thread = new QThread(this);
    m_dsp = new DeviceDSP;
    m_dsp->moveToThread(m_thread);
    // Emitted in the new thread, so the link opens before the first queued frame is looked at.
    connect(m_thread, &QThread::started, m_dsp, &DeviceDSP::openDSP);
    connect(m_thread, &QThread::finished, m_dsp, &QObject::deleteLater);
    connectLink();
    m_gpio = new DeviceGPIO;
    m_thread->start(QThread::HighestPriority);
    requestDSPVersion();
}

IDevice::~IDevice()
{
    m_thread->quit();
    m_thread->wait();
    delete m_gpio;
    delete m_version;
    if (m_idevice == this)
        m_idevice = nullptr;
}

void IDevice::connectLink()
{
    const auto queued = Qt::QueuedConnection;
    connect(this, &IDevice::requestTypeData, m_dsp, &DeviceDSP::RecvStart, queued);
    connect(this, &IDevice::requestVersion, m_dsp, &DeviceDSP::requestVersion, queued);
    connect(this, &IDevice::dspUpdate, m_dsp, &DeviceDSP::firmwareUpdate, queued);
    connect(this, &IDevice::writeDSP, m_dsp, &DeviceDSP::DSPWrite, queued);
    connect(this, &IDevice::writeHWClock, m_dsp, &DeviceDSP::writeHWClock, queued);
    connect(m_dsp, &DeviceDSP::dspUpdateStatus, this, &IDevice::dspUpdateStatus, queued);
    connect(m_dsp, &DeviceDSP::reopened, this, &IDevice::setUpAgain, queued);
    connectResults();
}

/// What the link emits runs on the device thread and goes no further than the queue.
void IDevice::connectResults()
{
    const auto put = [this](Delivery delivery) {
        if (m_results->put(std::move(delivery)))
            QMetaObject::invokeMethod(this, "resultCame", Qt::QueuedConnection);
    };
    const auto putDatagram = [put](__datagramtype kind, const QByteArray &datagram) { put({ kind, datagram, 0 }); };
    for (const auto signal : { &DeviceDSP::datagramAggregation, &DeviceDSP::datagramRMS_1_2,
                               &DeviceDSP::datagramTransient, &DeviceDSP::datagramWave, &DeviceDSP::datagramFlicker,
                               &DeviceDSP::datagramFirmwareInfo, &DeviceDSP::datagramUpdate })
        connect(m_dsp, signal, m_dsp, putDatagram, Qt::DirectConnection);
    const auto direct = Qt::DirectConnection;
    connect(
        m_dsp, &DeviceDSP::dspTimeStamp, m_dsp,
        [put](quint32 s) {
            put({ Delivery::TimeStamp, {}, s });
        },
        direct);
    connect(
        m_dsp, &DeviceDSP::usingBDS, m_dsp,
        [put](quint32 w) {
            put({ Delivery::BdsWord, {}, w });
        },
        direct);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &IDevice::takeResults);
}

/// While the rest of a long turn waits for the timer, results that come meanwhile ask for no turn of their own: turns
/// would grow in number from round to round of the event loop, and keys wait longer and longer.
void IDevice::resultCame()
{
    if (!m_rest.isActive())
        takeResults();
}

/// One turn of the main thread: what waits, in its order, and the rest behind what else waits for this thread. A slot
/// may run an event loop of its own (a question to the user); then its turns go on with the order.
void IDevice::takeResults()
{
    m_results->beginTurn();
    QElapsedTimer turn;
    turn.start();
    for (Delivery result; m_results->take(&result);) {
        if (result.kind == Delivery::TimeStamp)
            dspTimeStampSlot(result.word);
        else if (result.kind == Delivery::BdsWord)
            usingBDSSlot(result.word);
        else
            takeDatagram(result);
        if (turn.elapsed() >= kLongestTurn) {
            m_rest.start(0);
            return;
        }
    }
}

void IDevice::takeDatagram(const Delivery &result)
{
    const auto slot = kResultSlots[result.kind];
    (this->*slot)(static_cast<__datagramtype>(result.kind), result.bytes);
}

/// A processor that went and came back has lost its set-up: it gets the whole start sequence.
void IDevice::setUpAgain()
{
    DeviceInit::initAnalogDevice2();
    emit reopened();
}

void IDevice::sendDSPMgmt(const void *data, unsigned int len)
{
    emit writeDSP(data, static_cast<int>(len));
}

void IDevice::sendDSPMgmt(const QByteArray &frame)
{
    sendDSPMgmt(frame.constData(), static_cast<unsigned int>(frame.size()));
    // Stands behind the write in the device thread's queue, and holds the bytes until then.
    QMetaObject::invokeMethod(
        m_dsp, [frame] { Q_UNUSED(frame) }, Qt::QueuedConnection);
}

QString IDevice::dspVersion() const
{
    return *m_version;
}

void IDevice::changeHWClock(QByteArray bytes)
{
    emit writeHWClock(bytes);
}

void IDevice::changeCurrentGPIO(int value)
{
    m_gpio->changeCurrentGPIO(value);
}

void IDevice::changeVoltGPIO(int value)
{
    m_gpio->changeVoltGPIO(value);
}

void IDevice::changeNCurrentGPIO(int value)
{
    m_gpio->changeNCurrentGPIO(value);
}

void IDevice::changeNVoltGPIO(int value)
{
    m_gpio->changeNVoltGPIO(value);
}

void IDevice::changeAnalogSwitchI(int value)
{
    changeCurrentGPIO(value);
    changeNCurrentGPIO(value);
}

void IDevice::changeAnalogSwitchV(int value)
{
    changeVoltGPIO(value);
    changeNVoltGPIO(value);
}

void IDevice::datagramAggregationSlot(__datagramtype, const QByteArray &datagram)
{
    emit datagramAggregation(datagram);
}

void IDevice::datagramRMS_1_2Slot(__datagramtype, const QByteArray &datagram)
{
    emit datagramRMS_1_2(datagram);
}

void IDevice::datagramTransientSlot(__datagramtype, const QByteArray &datagram)
{
    emit datagramTransient(datagram);
}

void IDevice::datagramWaveSlot(__datagramtype, const QByteArray &datagram)
{
    emit datagramWave(datagram);
}

void IDevice::datagramFlickerSlot(__datagramtype, const QByteArray &datagram)
{
    emit datagramFlicker(datagram);
}

void IDevice::datagramFirmwareInfoSlot(__datagramtype, const QByteArray &text)
{
    const int zero = text.indexOf('\0');
    *m_version = QString::fromLatin1(text.constData(), zero < 0 ? text.size() : zero);
    QV_TRACE("device/idevice") << "=====DSP Version" << *m_version;
    emit datagramFirmwareInfo(text);
}

void IDevice::datagramUpdateSlot(__datagramtype, const QByteArray &datagram)
{
    emit datagramUpdate(datagram);
}

void IDevice::dspTimeStampSlot(quint32 seconds)
{
    emit dspTimeStamp(seconds);
}

void IDevice::usingBDSSlot(quint32 word)
{
    emit usingBDS(word);
}

void IDevice::requestDSPData(int type, int interval)
{
    emit requestTypeData(type, interval);
}

void IDevice::requestDSPVersion()
{
    emit requestVersion();
}

void IDevice::buzzerRing(unsigned int value)
{
    static FrameSlots places;
    QByteArray &frame = places.next();
    ControlFrame::appendWord(frame, ControlFrame::RawBuzzer);
    ControlFrame::appendWord(frame, value);
    sendDSPMgmt(frame.constData(), static_cast<unsigned int>(frame.size()));
}

void IDevice::firmwareUpdate(QByteArray frame)
{
    emit dspUpdate(frame);
}
