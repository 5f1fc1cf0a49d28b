#pragma once

#include "pages/labelgrid.h"
#include "pages/livepage.h"

#include <functional>
#include <memory>

namespace Ui {
class EditorForm;
}

/// A page of fields, one below the other: what it shows and how a key changes it stands in its rows. Up and down move
/// the selection past the rows that are grey, left and right change the field in steps that grow while the key is held,
/// Enter acts on it. A page either stores every change at once, or keeps a working copy that ok() stores and cancel()
/// drops. Its own file holds the rows and the soft keys; F5 without a row in its table does nothing.
class EditorPage : public LivePage
{
    Q_OBJECT

public:
    /// One field: labels <name>_t and <name>.
    struct Row
    {
        QString name;
        const char *caption; // to be translated; null: the caption is never written
        std::function<QString()> text; // with its unit
        std::function<void(int step)> step; // right is positive; null: left and right do nothing
        std::function<void()> enter; // null: Enter does nothing
        std::function<bool()> enabled; // null: always; a row that is not is grey and cannot be selected
        const char *context = nullptr; // of the caption's translation; null: the page's class
        std::function<QString()> note = {}; // label <name>_note to the left of the value; null: no such label
        bool shownOnly = false; // in full colour like any other row, but it cannot be selected
    };

    /// A number as rows step it. Reading gives any number; a step moves from there by \a step times the key's step,
    /// stops at the bounds and writes only what differs: a key held at a bound must not write a file over and over.
    struct Number
    {
        std::function<double()> read;
        std::function<void(double)> write;
        double least;
        double most;
        double step = 1;

        void move(int steps) const;
    };

    ~EditorPage() override;

    int field() const { return m_field; } // selected row, 0 at the top

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void stored(); // after ok()
    void cancelled(); // after cancel()

protected:
    /// What every page has a fixed place for: \a title at the top left, rows from \a top on in steps of \a pitch
    /// pixels.
    struct Look
    {
        const char *title; // to be translated
        int top = 70;
        int pitch = 60;
        int captionWidth = 240; // the values get the rest
        int height = 44; // of a row
        int textSize = 24;
    };
    /// \a pace: how the steps of a held key grow.
    EditorPage(_quvera_ui_type type, const Look &look, const KeyRepeat::Pace &pace, QWidget *parent);

    /// To be called once, before setKeys. The page is dressed and shows the first row that can be selected.
    void setRows(std::vector<Row> rows);
    /// Row \a name steps \a number and shows it in \a pattern: "%1 %" with \a decimals.
    static Row numberRow(const QString &name, const char *caption, const Number &number, const char *pattern,
                         int decimals = 0);
    /// Row \a name steps the setting of \a key (settings/settingrow.h) within its editing bounds and stores every
    /// change at once; \a changed is called when the value is another one. A key that is no setting's gives a row that
    /// stays.
    static Row settingRow(const QString &name, const char *caption, const char *key, std::function<QString()> text,
                          std::function<void()> changed = {});

    /// How the setting of \a key grows while a key is held; by single steps for one that does not, and for no setting.
    static KeyRepeat::Pace paceOf(const char *key);

    /// Takes the working copy from what is stored; called when a run begins and by cancel(). A page that stores at once
    /// has none.
    virtual void load() { }
    /// Writes the working copy.
    virtual void store() { }
    void ok();
    void cancel();

    void selectPrev() { select(-1); }
    void selectNext() { select(1); }
    void selectFirst();
    /// As much of a text of any length as the value of a row has room for.
    QString fitted(const char *row, const QString &text) const;
    /// Texts and enabled rows anew; what a key changed is shown by itself.
    void showRows();

    std::vector<FrontKeys::Row> commonKeys() override;

private:
    void select(int direction);
    void changeField(int step);
    void enterField();
    bool isEnabled(int row) const;
    void showEnabled(int row);
    void showSelection();

    const Look m_look;
    const KeyRepeat::Pace m_pace;
    std::unique_ptr<Ui::EditorForm> m_ui;
    std::vector<Row> m_rows;
    std::vector<LabelGrid::Row> m_labels; // in the order of the rows; the second value is the note, if there is one
    int m_field = 0;
};
