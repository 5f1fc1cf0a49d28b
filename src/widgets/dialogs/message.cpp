#include "widgets/dialogs/message.h"

#include "ui_message.h"

#include <iterator>

namespace {
/// A soft key of a message; no text: no key.
struct MessageKey
{
    const char *text;
    int ret;
};

struct MessageForm
{
    const char *icon;
    MessageKey keys[5]; // F1 to F5
};
} // namespace

static constexpr MessageKey kNone { nullptr, Message::None };
static constexpr MessageKey kOk { QT_TRANSLATE_NOOP("Message", "Ok"), Message::Ok };
static constexpr MessageKey kYes { QT_TRANSLATE_NOOP("Message", "Yes"), Message::Yes };
static constexpr MessageKey kNo { QT_TRANSLATE_NOOP("Message", "No"), Message::No };
static constexpr MessageKey kCancel { QT_TRANSLATE_NOOP("Message", "Cancel"), Message::Cancel };

// clang-format off
static const MessageForm kForms[] = {
    { ":/info",     { kNone, kNone, kNone, kNone, kOk } },
    { ":/question", { kNone, kNone, kNone, { QT_TRANSLATE_NOOP("Message", "Quit"), Message::Quit }, kCancel } },
    { ":/warning",  { kNone, kNone, kNone, kOk, kCancel } },
    { ":/error",    { kNone, kNone, kNone, kNone, kOk } },
    { ":/question", { kNone, kNone, kNone, kYes, kNo } },
    { ":/info",     { kNone, kNone, { QT_TRANSLATE_NOOP("Message", "Save & Restart"), Message::Save },
                                    { QT_TRANSLATE_NOOP("Message", "Discard & Restart"), Message::Discard }, kCancel } },
    { ":/info",     { kNone, kNone, { QT_TRANSLATE_NOOP("Message", "Save & Exit"), Message::Save },
                                    { QT_TRANSLATE_NOOP("Message", "Discard & Exit"), Message::Discard }, kCancel } },
    { ":/warning",  { { QT_TRANSLATE_NOOP("Message", "Exit"), Message::Discard },
                      { QT_TRANSLATE_NOOP("Message", "Restart"), Message::Restart }, kNone,
                      { QT_TRANSLATE_NOOP("Message", "Save"), Message::Save }, kCancel } },
    { ":/question", { { QT_TRANSLATE_NOOP("Message", "Yes to all"), Message::YesToAll },
                      { QT_TRANSLATE_NOOP("Message", "No to all"), Message::NoToAll }, kNone,
                      kYes, kNo } },
};
// clang-format on

int Message::showMessage(int type, const QString &text)
{
    Message message(type, text);
    return message.exec() == QDialog::Accepted ? message.getRet() : 0;
}

bool Message::confirm(const QString &text, const QString &action)
{
    Message message(YesNo, text);
    message.setKeyText(4, action);
    return message.exec() == QDialog::Accepted && message.getRet() == Yes;
}

Message::Message(int type, const QString &text, QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::Message), m_type(type >= 0 && type < int(std::size(kForms)) ? type : Info)
{
    m_ui->setupUi(this);
    const MessageForm &form = kForms[m_type];
    m_ui->icon->setPixmap(QPixmap(QString::fromLatin1(form.icon)));
    fitText(m_ui->message, text, 20);
    finishForm();
    for (int i = 0; i < 5; ++i)
        setKeyText(i + 1, form.keys[i].text ? tr(form.keys[i].text) : QString());
}

Message::~Message() = default;

void Message::pressKey(int key)
{
    if (key < Qt::Key_F1 || key > Qt::Key_F5)
        return;
    const MessageKey &pressed = kForms[m_type].keys[key - Qt::Key_F1];
    if (!pressed.text)
        return;
    m_ret = pressed.ret;
    accept();
}
