#include "views/transients/trans.h"

#include "device/deviceinit.h"
#include "model/transparam.h"
#include "views/transients/transmain.h"
#include "views/transients/transtart.h"
#include "views/transients/transview.h"

namespace {

constexpr int kRecordBytes = offsetof(__trans_data, samples) + sizeof(__trans_data::samples);
static_assert(kRecordBytes == 4836, "fields of a transient, without what pads it");

void appendWord(QByteArray &bytes, qint32 word)
{
    bytes.append(reinterpret_cast<const char *>(&word), sizeof word);
}

} // namespace

trans::trans(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_TRANSIENTS, { 5, "Trans" }, data,
                    {
                        { make<TransMain>, { way(&TransMain::goTranStart, Start, &trans::startCapture) } },
                        { make<TranStart>, { way(&TranStart::goTransView, View) } },
                        { make<TransView>, { way(&TransView::goTranStart, Start) } },
                    },
                    parent)
{ }

void trans::hasTransEvents()
{
    if (auto *start = made<TranStart>(Start))
        start->showCount();
    if (auto *view = made<TransView>(View))
        view->followList();
}

void trans::startCapture()
{
    // A new set-up is the only way to the processor, and it interrupts its measurement: only for a new threshold.
    if (made<TransMain>(Main)->takeChanged())
        DeviceInit::setupADSP21479();
    emit startTransTask();
}

void trans::aboutToShow(int row)
{
    if (row == Start)
        made<TranStart>(Start)->showCount();
    else if (row == View)
        made<TransView>(View)->selectNewest();
}

QByteArray trans::pqaData() const
{
    QByteArray bytes;
    const TransientList &list = data().transients();
    appendWord(bytes, list.shownSize());
    appendWord(bytes, kRecordBytes);
    for (int index = 0; index < list.shownSize(); ++index)
        bytes.append(reinterpret_cast<const char *>(&list.shownAt(index)), kRecordBytes);
    return bytes;
}
