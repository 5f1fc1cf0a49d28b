#include "views/recorder/recordingparam.h"

#include "model/nominalfrequency.h"
#include "pages/labelgrid.h"
#include "settings/config_data.h"
#include "settings/recordinfo.h"
#include "widgets/controls/loggercheckbox.h"

#include <QLabel>

#include <iterator>

namespace {

bool is400Hz()
{
    return isNominal(m_settingConfig_g.getNomFreq(), 400.0);
}

} // namespace

RecordingParam::RecordingParam(const Look &look, const RecordingKind &kind, QWidget *parent)
    : ChoicePage(UI_LOGGER, AnyOf, look, parent), m_kind(kind)
{
    connect(this, &ChoicePage::choiceChanged, this, [this] { checkParams(); });
}

void RecordingParam::setBoxes(std::vector<Box> boxes)
{
    static const KeyRow<RecordingParam> keys[] = {
        { Qt::Key_F1, nullptr, &RecordingParam::selectAll },
        { Qt::Key_F2, nullptr, &RecordingParam::invertAll },
        { Qt::Key_F4, nullptr, &RecordingParam::writeSelected },
        { Qt::Key_F5, nullptr, &RecordingParam::goRecordSetup },
    };
    m_boxes = std::move(boxes);
    for (const Box &box : m_boxes)
        m_choices.push_back(box.choice);
    setChoices(m_choices);
    setKeys(keys);
}

QAbstractButton *RecordingParam::makeButton()
{
    return new LoggerCheckBox(this);
}

int RecordingParam::boxOf(quint32 bit) const
{
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        if (m_boxes[i].bits & bit)
            return int(i);
    }
    return -1;
}

void RecordingParam::load()
{
    m_kind.readChoices();
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        const bool offered = offers(m_boxes[i]);
        setAvailable(int(i), offered);
        setChosen(int(i), offered && *m_kind.choices & m_boxes[i].bits);
    }
    checkParams();
}

void RecordingParam::writeSelected()
{
    quint32 choices = *m_kind.choices;
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        if (!isAvailable(int(i)))
            continue; // chosen or not, as it was
        choices &= ~m_boxes[i].bits;
        if (isChosen(int(i)))
            choices |= m_boxes[i].bits;
    }
    *m_kind.choices = choices;
    m_kind.writeChoices();
    emit goRecordSetup();
}

void RecordingParam::retranslateUi()
{
    ChoicePage::retranslateUi();
    setKeyCaption(1, tr("All"));
    setKeyCaption(2, tr("Invert"));
    setKeyCaption(4, tr("Ok"));
    setKeyCaption(5, tr("Cancel"));
}

// The recorder's

namespace {

constexpr int kTop = 48, kPitch = 44, kHeight = 40, kTextSize = 18; // pixels
constexpr int kCaptionLeft = 16, kCaptionWidth = 150;
constexpr int kBoxes = 174, kBoxWidth = 224, kColumnPitch = 234;

/// Captions of the lines of boxes, two boxes in each.
const char *const kLines[] = {
    QT_TRANSLATE_NOOP("RecordPqa2Param", "Values"),       QT_TRANSLATE_NOOP("RecordPqa2Param", "Power"),
    QT_TRANSLATE_NOOP("RecordPqa2Param", "Quality"),      QT_TRANSLATE_NOOP("RecordPqa2Param", "U Harmonics"),
    QT_TRANSLATE_NOOP("RecordPqa2Param", "I Harmonics"),  QT_TRANSLATE_NOOP("RecordPqa2Param", "U Interharm."),
    QT_TRANSLATE_NOOP("RecordPqa2Param", "I Interharm."), QT_TRANSLATE_NOOP("RecordPqa2Param", "Signaling"),
};

} // namespace

RecordPqa2Param::RecordPqa2Param(QWidget *parent)
    : RecordingParam({ QT_TRANSLATE_NOOP("RecordPqa2Param", "Params"), kBoxes, kTop, kPitch, kBoxWidth, 2, kColumnPitch,
                       kTextSize, kHeight },
                     RecordingKind::recorder(), parent)
{
    using Item = RecordInfo;
    static const Box boxes[] = {
        { { "rms", QT_TRANSLATE_NOOP("RecordPqa2Param", "Urms Irms CF THD") }, Item::CommonRms },
        { { "frequency", QT_TRANSLATE_NOOP("RecordPqa2Param", "Frequence") }, Item::FrequencyInterval },
        { { "power", QT_TRANSLATE_NOOP("RecordPqa2Param", "P S Q PF cosφ tanφ") }, Item::Power },
        { { "energy", QT_TRANSLATE_NOOP("RecordPqa2Param", "E(Wh) E(VAh) E(varh)") }, Item::Energy },
        { { "flicker", QT_TRANSLATE_NOOP("RecordPqa2Param", "Pst Plt") }, Item::Flicker },
        { { "unbalance", QT_TRANSLATE_NOOP("RecordPqa2Param", "Unbalance") }, Item::Unbalance },
        { { "u_harmonics", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms angle) 1-50") }, Item::HarmonicVolt1to50 },
        { { "u_harmonics_high", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms angle) 51-100") },
          Item::HarmonicVolt51to100 },
        { { "i_harmonics", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms angle) 1-50") }, Item::HarmonicAmp1to50 },
        { { "i_harmonics_high", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms angle) 51-100") },
          Item::HarmonicAmp51to100 },
        { { "u_interharmonics", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms) 0-49") }, Item::InterharmonicVolt0to49 },
        { { "u_interharmonics_high", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms) 50-51") },
          Item::InterharmonicVolt50to99 },
        { { "i_interharmonics", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms) 0-49") }, Item::InterharmonicAmp0to49 },
        { { "i_interharmonics_high", QT_TRANSLATE_NOOP("RecordPqa2Param", "(rms) 50-51") },
          Item::InterharmonicAmp50to99 },
        { { "mains_signaling", QT_TRANSLATE_NOOP("RecordPqa2Param", "Mains Signaling") }, Item::MainsSignaling },
    };
    constexpr LabelGrid lines = { 0, 0, 0, 0, kHeight, kCaptionLeft, kCaptionWidth, kTextSize, 0 };
    for (std::size_t i = 0; i < std::size(kLines); ++i)
        m_lines.push_back(lines.addRow(this, QStringLiteral("line_%1").arg(i + 1), {}, kTop + int(i) * kPitch).caption);
    setBoxes(std::vector<Box>(std::begin(boxes), std::end(boxes)));
}

void RecordPqa2Param::retranslateUi()
{
    RecordingParam::retranslateUi();
    for (std::size_t i = 0; i < m_lines.size(); ++i)
        setText(m_lines[i], tr(kLines[i]));
}

bool RecordPqa2Param::offers(const Box &box) const
{
    constexpr quint32 kHighOrders = RecordInfo::HarmonicVolt51to100 | RecordInfo::HarmonicAmp51to100
        | RecordInfo::InterharmonicVolt50to99 | RecordInfo::InterharmonicAmp50to99;
    return !is400Hz() || !(box.bits & (kHighOrders | RecordInfo::Flicker));
}

/// The distortion of a spectrum stands beside the r.m.s. values.
void RecordPqa2Param::checkParams()
{
    for (int i = 0; i < choiceCount(); ++i) {
        if (isChosen(i) && boxes()[std::size_t(i)].bits & RecordInfo::AllHarmonics)
            setChosen(boxOf(RecordInfo::CommonRms));
    }
}
