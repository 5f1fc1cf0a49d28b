#include "setup/calibrationdialog.h"

#include "device/idevice.h"
#include "ui_calibrationdialog.h"
#include "widgets/dialogs/message.h"

#include <iterator>

namespace {

using Start = void (*)(Calibration &, int channel);

template <Calibration::CAL_VOLT volts> void startVolt(Calibration &calibration, int channel)
{
    calibration.startCalibVolt(volts, channel);
}

template <Calibration::CAL_CURRENT input> void startCurrent(Calibration &calibration, int channel)
{
    calibration.startCalibCurrent(input, channel);
}

/// A run that can be selected: its label in the form, and what stands there while it lasts.
struct Item
{
    const char *name;
    const char *message;
    Start start;
};

const Item kItems[] = {
    { "calib_0", QT_TRANSLATE_NOOP("CalibrationDialog", "Zero calibrating ..."),
      [](Calibration &calibration, int) { calibration.startCalibZero(); } },
    { "calib_v0", QT_TRANSLATE_NOOP("CalibrationDialog", "Volt 120V calibrating ..."),
      startVolt<Calibration::Volt120> },
    { "calib_v1", QT_TRANSLATE_NOOP("CalibrationDialog", "Volt 220V calibrating ..."),
      startVolt<Calibration::Volt220> },
    { "calib_v2", QT_TRANSLATE_NOOP("CalibrationDialog", "Volt 400V calibrating ..."),
      startVolt<Calibration::Volt400> },
    { "calib_v3", QT_TRANSLATE_NOOP("CalibrationDialog", "Volt 600V calibrating ..."),
      startVolt<Calibration::Volt600> },
    { "calib_i_1", QT_TRANSLATE_NOOP("CalibrationDialog", "Current 1mV/1A calibrating ..."),
      startCurrent<Calibration::Input1mV> },
    { "calib_i_10", QT_TRANSLATE_NOOP("CalibrationDialog", "Current 10mV/1A calibrating ..."),
      startCurrent<Calibration::Input10mV> },
    { "calib_i_65", QT_TRANSLATE_NOOP("CalibrationDialog", "Current 65mV/kA calibrating ..."),
      startCurrent<Calibration::Input65mV> },
};
constexpr int kItemCount = int(std::size(kItems));

// By channel: all, then one.
const char *const kChannels[] = {
    QT_TRANSLATE_NOOP("CalibrationDialog", "L1  L2  L3  N"),
    QT_TRANSLATE_NOOP("CalibrationDialog", "L1"),
    QT_TRANSLATE_NOOP("CalibrationDialog", "L2"),
    QT_TRANSLATE_NOOP("CalibrationDialog", "L3"),
    QT_TRANSLATE_NOOP("CalibrationDialog", "N"),
};
constexpr int kChannelCount = int(std::size(kChannels));

constexpr int kInfoPixels = 20;

// The items stand on light ground: the colour of the ones that are not selected is dark.
const char kPanelStyle[] = "QFrame#panel { background-color: rgb(205, 211, 219); border-radius: 4px; }"
                           "QFrame#panel QLabel { color: rgb(0, 0, 0); }";
const char kSelectedStyle[] = "color: rgb(255, 255, 255);background-color: rgb(64, 64, 64);";
const char kItemStyle[] = "color: rgb(64, 64, 64);";

} // namespace

void CalibrationDialog::calibration()
{
    CalibrationDialog dialog;
    dialog.m_calibration.save(dialog.exec() == Accepted);
}

CalibrationDialog::CalibrationDialog(QWidget *parent) : SoftKeyDialog(parent), m_ui(new Ui::CalibrationDialog)
{
    m_ui->setupUi(this);
    m_ui->panel->setStyleSheet(QLatin1String(kPanelStyle));
    finishForm();
    if (m_idevice)
        fitText(m_ui->firmware_version, m_idevice->dspVersion(), 18);
    static const FrontKeys::KeyRow<CalibrationDialog> keys[] = {
        { Qt::Key_Up, nullptr, &CalibrationDialog::changeItemPrev },
        { Qt::Key_Down, nullptr, &CalibrationDialog::changeItemNext },
        { Qt::Key_F1, QT_TRANSLATE_NOOP("CalibrationDialog", "Tab"), &CalibrationDialog::changeItemNext },
        { Qt::Key_F2, nullptr, &CalibrationDialog::changeChannle },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("CalibrationDialog", "Start"), &CalibrationDialog::startCalibSession },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("CalibrationDialog", "Save"), &CalibrationDialog::accept },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("CalibrationDialog", "Cancel"), &CalibrationDialog::cancel },
    };
    setKeys(keys);
    showChannel();
    for (const Item &item : kItems)
        findChild<QLabel *>(QLatin1String(item.name))->setStyleSheet(QLatin1String(kItemStyle));
    select(0);
    connect(&m_calibration, &Calibration::Completed, this, &CalibrationDialog::completed);
}

CalibrationDialog::~CalibrationDialog() = default;

void CalibrationDialog::pressKey(int key)
{
    if (!m_running || key == Qt::Key_F5)
        SoftKeyDialog::pressKey(key);
}

void CalibrationDialog::select(int item)
{
    const auto paint = [this](int which, const char *style) {
        findChild<QLabel *>(QLatin1String(kItems[which].name))->setStyleSheet(QLatin1String(style));
    };
    paint(m_item, kItemStyle);
    m_item = item;
    paint(m_item, kSelectedStyle);
}

void CalibrationDialog::changeItemPrev()
{
    select((m_item + kItemCount - 1) % kItemCount);
}

void CalibrationDialog::changeItemNext()
{
    select((m_item + 1) % kItemCount);
}

void CalibrationDialog::showChannel()
{
    setKeyText(2, tr(kChannels[m_channel]));
}

void CalibrationDialog::changeChannle()
{
    m_channel = (m_channel + 1) % kChannelCount;
    showChannel();
}

void CalibrationDialog::startCalibSession()
{
    const Item &item = kItems[m_item];
    m_running = true;
    fitText(m_ui->info, tr(item.message), kInfoPixels);
    m_ui->info->repaint(); // the run begins with a pause
    item.start(m_calibration, m_channel);
}

void CalibrationDialog::completed()
{
    m_running = false;
    fitText(m_ui->info, tr("Ok!"), kInfoPixels);
}

void CalibrationDialog::cancel()
{
    if (!m_running
        || Message::showMessage(Message::YesNo, tr("The calibration task is running, \nDo you want to exit?"))
            == Message::Yes)
        reject();
}
