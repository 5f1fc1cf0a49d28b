#include "pages/scopeformpage.h"
#include "ui_scopeform.h"

#include "pages/labelgrid.h"
#include "settings/config_data.h"
#include "widgets/controls/labellook.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kLastSample = 599;
constexpr QRect kFirstKeyPlace(3, 410, 124, 34);

/// How a form with one line of labels above its picture is set, and one with two.
constexpr struct
{
    int lineHeight;
    int linePitch;
    int textSize;
    int pictureTop;
    int valuesTop;
} kLayouts[] = {
    { 28, 0, 20, 34, 368 },
    { 26, 27, 18, 56, 377 },
};
constexpr int kFirstLineTop = 2;

} // namespace

ScopeFormPage::ScopeFormPage(_quvera_ui_type type, SaveIdentity identity, QWidget *parent)
    : FunctionPage(type, identity, parent), m_drawn(new __scope_data_ui()), m_ui(new Ui::ScopeForm)
{
    m_ui->setupUi(this);
}

ScopeFormPage::~ScopeFormPage() = default;

std::vector<FrontKeys::Row> ScopeFormPage::commonKeys()
{
    static const KeyRow<ScopeFormPage> switches[] = {
        { Qt::Key_F3, nullptr, &ScopeFormPage::toggleCursor },
        { Qt::Key_F4, nullptr, &ScopeFormPage::toggleZoom },
    };
    static const KeyRow<ScopeFormPage> cursor[] = {
        { Qt::Key_Left, nullptr, &ScopeFormPage::stepCursor, -1, {} },
        { Qt::Key_Right, nullptr, &ScopeFormPage::stepCursor, 1, {} },
    };
    static const KeyRow<ScopeFormPage> time[] = {
        { Qt::Key_Left, nullptr, &ScopeFormPage::shortenTime },
        { Qt::Key_Right, nullptr, &ScopeFormPage::lengthenTime },
    };
    static const KeyRow<ScopeFormPage> zoom[] = {
        { Qt::Key_Up, nullptr, &ScopeFormPage::zoomIn },
        { Qt::Key_Down, nullptr, &ScopeFormPage::zoomOut },
    };
    std::vector<FrontKeys::Row> rows = FrontKeys::rowsOf(this, switches);
    const auto add = [this, &rows](const auto &table) {
        for (FrontKeys::Row &row : FrontKeys::rowsOf(this, table))
            rows.push_back(std::move(row));
    };
    if (m_cursorOn)
        add(cursor);
    else if (m_zoomOn)
        add(time);
    if (m_zoomOn)
        add(zoom);
    return rows;
}

void ScopeFormPage::setUp(const std::vector<HeadLabel> &head, SoftKeyButton *firstKey)
{
    const auto second = [](const HeadLabel &label) { return label.line == 2; };
    const int lines = std::any_of(head.begin(), head.end(), second) ? 2 : 1;
    const auto &layout = kLayouts[lines - 1];
    setObjectName(QString::fromLatin1(metaObject()->className()));
    m_ui->stop_watch->resize(m_ui->stop_watch->width(), layout.lineHeight);
    m_ui->scope->move(m_ui->scope->x(), layout.pictureTop);
    for (QLabel *label : { m_ui->zoom_t, m_ui->zoom_scale }) {
        label->setGeometry(label->x(), kFirstLineTop + layout.linePitch, label->width(), layout.lineHeight);
        label->setProperty("textSize", layout.textSize);
    }
    for (const HeadLabel &label : head)
        addHead(label, lines);
    ValueStrip { 16, 154, 50, 100, layout.valuesTop }.add(this);
    addFirstKey(firstKey);
    LabelLook::dress(this);
    m_readout = std::make_unique<ScopeReadout>(this);
    showSwitches();
    showScale();
    setPageKeys();
}

void ScopeFormPage::addHead(const HeadLabel &head, int lines)
{
    const auto &layout = kLayouts[lines - 1];
    auto *label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(head.name));
    label->setGeometry(head.left, kFirstLineTop + (head.line - 1) * layout.linePitch, head.width, layout.lineHeight);
    label->setAlignment((head.aside ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (head.aside)
        label->setProperty("textColor", QStringLiteral("#c0c0c0"));
    else
        label->setProperty("textSize", layout.textSize);
}

void ScopeFormPage::addFirstKey(SoftKeyButton *button)
{
    QLabel *key = button;
    if (!key) {
        key = new QLabel;
        key->setAlignment(Qt::AlignCenter);
        key->setProperty("textSize", 16);
        key->setProperty("textColor", QStringLiteral("#000000"));
    }
    key->setParent(this);
    key->setObjectName(QStringLiteral("btn_f1"));
    key->setGeometry(kFirstKeyPlace);
    key->setProperty("background", QStringLiteral(":/button"));
}

QLabel *ScopeFormPage::headLabel(const char *name) const
{
    return findChild<QLabel *>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
}

void ScopeFormPage::init_parameter()
{
    FunctionPage::init_parameter();
    m_cursorOn = true;
    m_zoomOn = true;
    setPageKeys();
    setCursorIndex(0);
    showSwitches();
    showMode();
    defaultZoom();
}

void ScopeFormPage::retranslateUi()
{
    FunctionPage::retranslateUi();
    showMode();
    showCurVal();
}

void ScopeFormPage::showMode()
{
    m_ui->scope->setFlags(quint8(ChannelLabels::channels().scopeFlags(mode())));
    m_readout->setMode(mode());
}

void ScopeFormPage::showCurVal()
{
    m_readout->show(*m_drawn, m_cursorOn ? cursorIndex() : -1);
}

void ScopeFormPage::showPicture()
{
    showCurVal();
    m_ui->scope->showScopeData(m_drawn.get());
}

int ScopeFormPage::cursorIndex() const
{
    return std::clamp(m_ui->scope->cursorPosition() - 1, 0, kLastSample);
}

void ScopeFormPage::setCursorIndex(int index)
{
    m_ui->scope->setCursorPosition(std::clamp(index, 0, kLastSample));
}

void ScopeFormPage::stepCursor(int step)
{
    setCursorIndex(cursorIndex() + step);
    showCurVal();
}

void ScopeFormPage::toggleCursor()
{
    m_cursorOn = !m_cursorOn;
    setPageKeys();
    showSwitches();
}

void ScopeFormPage::toggleZoom()
{
    m_zoomOn = !m_zoomOn;
    setPageKeys();
    showSwitches();
}

void ScopeFormPage::defaultZoom()
{
    const Clamp *clamp = m_settingConfig_g.curClamp();
    m_ui->scope->setDefaultZoom(m_settingConfig_g.getRealNominalVolt(), ScopeReadout::voltCoefficient(0),
                                clamp ? clamp->range() * m_settingConfig_g.ratioI() : 0.0f,
                                ScopeReadout::ampereCoefficient(0));
    showScale();
}

void ScopeFormPage::zoomIn()
{
    m_ui->scope->setZoomNext();
    showScale();
}

void ScopeFormPage::zoomOut()
{
    m_ui->scope->setZoomPrev();
    showScale();
}

void ScopeFormPage::showSwitches()
{
    m_ui->scope->setCursorOn(m_cursorOn);
    m_ui->btn_f3->setBtnFlag(m_cursorOn);
    m_ui->btn_f4->setBtnFlag(m_zoomOn);
}

void ScopeFormPage::showScale()
{
    setText(m_ui->zoom_scale, QString::fromLatin1(ScopeWidget::zoomText(m_ui->scope->getZoomIndex())));
}
