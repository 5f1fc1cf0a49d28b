#pragma once

#include <QLabel>
#include <QVector>

/// Label over a soft key that paints its own choices: the selected one in black, the others in grey, under a caption
/// where it has one. What it offers is one row of a table. GUI thread.
class SoftKeyButton : public QLabel
{
    Q_OBJECT

public:
    /// A text, and the flag that selects it.
    struct Choice
    {
        const char *text;
        int flag;
    };
    /// What one kind of button offers, from left to right.
    struct Choices
    {
        const char *caption; // null: no caption
        QVector<Choice> list;
        int initialFlag;
    };

    /// Selects the text of `flag`; a flag that names none greys them all.
    void setBtnFlag(int flag);
    int btnFlag() const { return m_flag; }

    /// Shows the first \a count choices alone; more than there are: all.
    void offer(int count);

    /// The choices as shown, translated where they are words.
    QStringList texts() const;
    /// Caption, choices and the selected one in words: "Cursor On / Off: Off".
    QString spokenText() const;
    /// The selected text, empty if none is.
    QString selectedText() const;

protected:
    /// `choices` outlives the button.
    SoftKeyButton(const Choices &choices, QWidget *parent);

    void paintEvent(QPaintEvent *event) override;

private:
    int fittingPixels(const QStringList &texts, int width, int largest) const;

    const Choices &m_choices;
    int m_flag;
    int m_offered; // choices from the left
};
