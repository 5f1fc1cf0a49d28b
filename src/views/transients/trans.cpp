#include "views/transients/trans.h"

#include "device/deviceinit.h"
#include "model/transparam.h"
#include "board/screenshot.h"
#include "record/pqafile.h"
#include "settings/config_data.h"
#include "views/transients/transmain.h"
#include "views/transients/transtart.h"
#include "views/transients/transview.h"
#include "widgets/dialogs/savedialog.h"

namespace {

constexpr int kMainWindowId = 7; // As required: the set-up page's picture carries another number than the function's
constexpr int kRecordBytes = offsetof(__trans_data, samples) + sizeof(__trans_data::samples);
static_assert(kRecordBytes == 4836, "fields of a transient, without what pads it");

void appendWord(QByteArray &bytes, qint32 word)
{
    bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
}

} // namespace

trans::trans(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_TRANSIENTS, { 5, "Trans" }, data, parent), m_main(new TransMain), m_start(new TranStart(data)),
      m_view(new TransView)
{
    addPage(m_main);
    addPage(m_start);
    addPage(m_view);
    connect(m_main, &TransMain::goTranStart, this, &trans::startCapture);
    connect(m_start, &TranStart::goTransView, this, &trans::showTransView);
    connect(m_view, &TransView::goTranStart, this, &trans::showTranStart);
}

void trans::hasTransEvents()
{
    m_start->showCount();
    m_view->followList();
}

void trans::showTransMain()
{
    showPage(m_main);
}

void trans::startCapture()
{
    // A new set-up is the only way to the processor, and it interrupts its measurement: only for a new threshold.
    if (m_main->takeChanged())
        DeviceInit::setupADSP21479();
    emit startTransTask();
    showTranStart();
}

void trans::showTranStart()
{
    m_start->showCount();
    showPage(m_start);
}

void trans::showTransView()
{
    m_view->selectNewest();
    showPage(m_view);
}

bool trans::pressKey(int key)
{
    if (key != Qt::Key_F11 || currentPage() != m_main)
        return ViewContainer::pressKey(key);
    PqaFile file(kMainWindowId, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    QString name = QStringLiteral("Trans");
    if (SaveDialog::save(1, name) == 1)
        file.saveSnapshot(name);
    return true;
}

QByteArray trans::pqaData() const
{
    QByteArray bytes;
    appendWord(bytes, g_trans_events.size());
    appendWord(bytes, kRecordBytes);
    for (const __trans_data *record : qAsConst(g_trans_events))
        bytes.append(reinterpret_cast<const char *>(record), kRecordBytes);
    return bytes;
}
