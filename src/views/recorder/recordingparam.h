#pragma once

#include "pages/choicepage.h"
#include "views/recorder/recordingkind.h"

#include <vector>

class QLabel;

/// Choice of what a recording writes: a check box for each group. Ok stores the choice; groups that the set-up in force
/// does not have are grey, and stay chosen or not as they were.
class RecordingParam : public ChoicePage
{
    Q_OBJECT

public slots:
    void retranslateUi() override;
    /// The time of a recording that has ended is no business of the next one.
    void stopWatchChanged(const QString &) override { }

signals:
    void goRecordSetup();

protected:
    /// A check box and the bits of the choice that it stands for.
    struct Box
    {
        Choice choice;
        quint32 bits;
    };

    /// \a kind outlives the page.
    RecordingParam(const Look &look, const RecordingKind &kind, QWidget *parent);

    /// To be called once, before setKeys.
    void setBoxes(std::vector<Box> boxes);
    /// Whether the set-up in force has what this box stands for.
    virtual bool offers(const Box &box) const = 0;
    const std::vector<Box> &boxes() const { return m_boxes; }
    int boxOf(quint32 bit) const; // -1: none
    /// Holds the boxes to what belongs together; called whenever a key changed one.
    virtual void checkParams() { }

    QAbstractButton *makeButton() override;
    void load() override;

private:
    void writeSelected();

    const RecordingKind &m_kind;
    std::vector<Box> m_boxes;
    std::vector<Choice> m_choices; // of the boxes
};

/// What the recorder stores.
class RecordPqa2Param : public RecordingParam
{
    Q_OBJECT

public:
    explicit RecordPqa2Param(QWidget *parent = nullptr);

    SaveIdentity saveIdentity() const override { return { 26, "Params" }; }

public slots:
    void retranslateUi() override;

protected:
    bool offers(const Box &box) const override;
    void checkParams() override;

private:
    std::vector<QLabel *> m_lines; // captions of the lines
};
