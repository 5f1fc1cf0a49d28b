#include "widgets/dialogs/softkeydialog.h"

#include "widgets/charts/chartparts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

constexpr int kScreenBottom = 479; // last pixel row of the instrument's screen
constexpr int kKeyPixels = 18;
constexpr int kKeyMargin = 5;
constexpr int kSmallestPixels = 10;

// One sheet a dialog, set once.
static const char *const kStyle = "QLabel { background-color: transparent; color: rgb(255, 255, 255); }"
                                  "QLabel#btn_f1, QLabel#btn_f2, QLabel#btn_f3, QLabel#btn_f4, QLabel#btn_f5 {"
                                  " background-image: url(:/button); color: rgb(0, 0, 0); }"
                                  "QRadioButton { color: rgb(255, 255, 255); spacing: 8px; }"
                                  "QRadioButton::indicator { width: 24px; height: 24px; }"
                                  "QRadioButton::indicator:unchecked { image: url(:/radio_unchecked); }"
                                  "QRadioButton::indicator:checked { image: url(:/radio_checked); }";

QPointer<QWidget> SoftKeyDialog::s_keyboardGoesTo;

SoftKeyDialog::SoftKeyDialog(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_keys(this)
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    setModal(true);
    setFocusPolicy(Qt::StrongFocus);
    setStyleSheet(QString::fromLatin1(kStyle));
    QFont plain = font();
    plain.setPixelSize(20);
    setFont(plain);
}

void SoftKeyDialog::finishForm()
{
    setFixedSize(size());
    m_background = ChartParts::scaledPicture(QStringLiteral(":/message_bg"), size());
    for (QLabel *label : findChildren<QLabel *>()) {
        // A translation may be longer than its place. A label of the form has letters in points, not yet in pixels.
        label->ensurePolished();
        label->setTextFormat(Qt::PlainText); // as LabelLook does it for pages
        if (!label->text().isEmpty())
            fitText(label, label->text(), QFontInfo(label->font()).pixelSize());
    }
    for (int number = 1; number <= 5; ++number) {
        if (const QLabel *key = softKey(number))
            setKeyText(number, key->text());
    }
}

void SoftKeyDialog::takeKeys(std::vector<FrontKeys::Row> rows)
{
    for (const FrontKeys::Row &row : rows) {
        if (row.caption)
            setKeyText(row.key - Qt::Key_F1 + 1, QCoreApplication::translate(metaObject()->className(), row.caption));
    }
    m_keys.setRows(std::move(rows));
}

QLabel *SoftKeyDialog::softKey(int number) const
{
    return findChild<QLabel *>(QStringLiteral("btn_f%1").arg(number));
}

void SoftKeyDialog::setKeyText(int number, const QString &text)
{
    QLabel *key = softKey(number);
    if (!key)
        return;
    key->setMargin(kKeyMargin);
    fitText(key, text, kKeyPixels);
    key->setVisible(!text.isEmpty());
}

void SoftKeyDialog::fitText(QLabel *label, const QString &text, int largestPixels)
{
    const int flags = int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0);
    const QSize room = label->size() - 2 * QSize(label->margin(), label->margin());
    QFont font = label->font();
    for (int pixels = largestPixels; pixels >= kSmallestPixels; --pixels) {
        font.setPixelSize(pixels);
        const QSize needed = QFontMetrics(font).boundingRect(QRect(0, 0, room.width(), 2000), flags, text).size();
        if (needed.width() <= room.width() && needed.height() <= room.height())
            break;
    }
    label->setFont(font);
    label->setText(text);
}

QWidget *SoftKeyDialog::openerWindow()
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool page = window->windowType() != Qt::ToolTip && window->windowType() != Qt::SplashScreen;
        if (window->isVisible() && page && !qobject_cast<const SoftKeyDialog *>(window))
            return window;
    }
    return nullptr;
}

void SoftKeyDialog::setVisible(bool visible)
{
    if (visible == isVisible())
        return QDialog::setVisible(visible);
    if (visible) {
        m_opener = openerWindow();
        if (const auto *dialog = qobject_cast<const SoftKeyDialog *>(m_opener.data()))
            m_origin = dialog->m_origin;
        else
            m_origin = m_opener ? m_opener->mapToGlobal(QPoint(0, 0)) : QPoint();
        move(m_origin + QPoint(0, kScreenBottom - height()));
    }
    // A question may hand the keyboard back to a dialog that closes at once: it is on its way there, and goes on.
    const bool hadKeyboard = isActiveWindow() || s_keyboardGoesTo == this;
    QDialog::setVisible(visible);
    // Where no window manager does it, the keyboard comes to the dialog and goes back to the page.
    if (!visible && !(hadKeyboard && m_opener))
        return;
    s_keyboardGoesTo = visible ? this : m_opener.data();
    s_keyboardGoesTo->activateWindow();
}

void SoftKeyDialog::keyPressEvent(QKeyEvent *event)
{
    FrontKeys::press(*event, [this](int key) {
        pressKey(key);
        return true;
    });
    event->accept();
}

void SoftKeyDialog::keyReleaseEvent(QKeyEvent *event)
{
    m_keys.release(*event);
    event->accept();
}

void SoftKeyDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x0a, 0x13, 0x22));
    painter.drawPixmap(0, 0, m_background);
}
