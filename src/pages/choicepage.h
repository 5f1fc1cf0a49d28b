#pragma once

#include "pages/livepage.h"

#include <memory>
#include <vector>

namespace Ui {
class ChoiceForm;
}
class QAbstractButton;

/// A page of things to choose from, one below the other or in columns, filled line by line: radio buttons, of which
/// one is on, or check boxes, of which any may be. Up and down, with columns left and right too, move the cursor and
/// stop at the ends; with radio buttons that is the choice, with check boxes a bar stands behind the cursor and Enter
/// switches its box. A page's own file holds the table of choices and the soft keys; what is on counts only when the
/// page takes it, with the key that it has for that.
class ChoicePage : public LivePage
{
    Q_OBJECT

public:
    enum Kind { OneOf, AnyOf };

    ~ChoicePage() override;

    int cursor() const { return m_cursor; }
    bool isChosen(int index) const;
    /// First of the choices that are on; -1: none.
    int chosen() const;
    /// All that are on, in their order.
    std::vector<int> chosenAll() const;

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    /// A key changed what is on.
    void choiceChanged();

protected:
    /// One choice: the button of this name and its text, to be translated; null: setCaption gives it.
    struct Choice
    {
        const char *name;
        const char *caption;
    };
    /// Title, and where the buttons stand in pixels.
    struct Look
    {
        const char *title; // to be translated
        int left;
        int top;
        int pitch;
        int width;
        int columns = 1;
        int columnPitch = 0;
        int textSize = 24;
        int height = 40; // of a button
    };

    ChoicePage(_quvera_ui_type type, Kind kind, const Look &look, QWidget *parent);

    /// To be called once, before setKeys; the page is dressed. \a choices outlive the page. Of radio buttons the first
    /// is on.
    template <typename Choices> void setChoices(const Choices &choices)
    {
        for (const Choice &choice : choices)
            addChoice(choice);
        finishChoices();
    }

    /// Switches a choice as the page finds it stored. Radio buttons: \a on false changes nothing. No index: nothing.
    void setChosen(int index, bool on = true);
    /// A check box that is not available is grey and no key changes it; the cursor passes over it nonetheless.
    void setAvailable(int index, bool available);
    bool isAvailable(int index) const;
    /// The text of a choice that is the same in every language.
    void setCaption(int index, const QString &text);
    int choiceCount() const { return int(m_buttons.size()); }
    /// The button of a choice; it gets name, text and place from the page.
    virtual QAbstractButton *makeButton();
    /// What is stored becomes what is shown; called when a run begins.
    virtual void load() { }
    /// Check boxes only; with radio buttons they do nothing.
    void selectAll();
    void invertAll();

    std::vector<FrontKeys::Row> commonKeys() override;

private:
    void addChoice(const Choice &choice);
    void finishChoices();
    void moveCursor(int by);
    void moveSideways(int direction);
    QRect place(int index) const;
    void toggle();
    void showCursor();
    bool has(int index) const { return index >= 0 && index < int(m_buttons.size()); }

    const Kind m_kind;
    const Look m_look;
    std::unique_ptr<Ui::ChoiceForm> m_ui;
    std::vector<const Choice *> m_choices;
    std::vector<QAbstractButton *> m_buttons; // in the same order
    int m_cursor = 0;
};
