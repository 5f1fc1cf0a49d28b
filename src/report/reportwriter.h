#pragma once

#include "record/tables/recordreport.h"
#include "report/reportcontent.h"
#include "report/reporttext.h"

/// What is known of the files beside what was read out of them.
struct ReportSource
{
    QString name; // of the file or folder
    RecordKind kind = RecordKind::Recording;
    RecordState state = RecordState::Whole;
    QVector<RecordFault> faults;
};

/// Writes the report about a recording.
class ReportWriter
{
public:
    ReportWriter(const Judgement &judgement, const ReportSource &source, const Report &text);

    ReportContent content();

    /// The table of the first page, for others to show.
    ReportTable verdictTable() const;
    /// "The supply complies with EN50160." and its tone. Shorter recordings than a week are an indication.
    QString headline(Tone *tone) const;
    /// What the verdict is worth when the recording has no whole week; empty otherwise.
    QString reservation() const;
    /// Name and value of what, when, how long and in which state.
    QVector<QPair<QString, QString>> facts() const;

private:
    static Tone toneOf(Outcome outcome);
    // reportwriter.cpp
    void frontPage();
    QVector<ReportCell> verdictRow(const QuantityVerdict &verdict) const;
    QVector<ReportCell> countRow(const EventCount &count) const;
    void addRest(ReportTable *table) const;
    QString limitText(const QuantityVerdict &verdict) const;
    ReportCell momentOf(const QuantityVerdict &verdict) const;
    const QuantityVerdict *worstHarmonic() const;
    void notes();
    void differences();
    // reportsections.cpp
    void trends();
    void harmonics();
    void events();
    QVector<ReportCell> eventRow(const RecordedEvent &event) const;
    void moments();
    void instrument();
    void missing();

    const Judgement &m_judgement;
    const ReportSource &m_source;
    const Report &m_text;
    ReportContent m_content;
};
