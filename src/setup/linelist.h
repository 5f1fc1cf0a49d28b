#pragma once

#include "pages/labelgrid.h"
#include "pages/listpage.h"

#include <array>
#include <memory>

namespace Ui {
class SetupPane;
}

/// A list of Setup: lines of a name and up to four columns below a title, with a bar behind the selected one.
class LineList : public ListPage
{
    Q_OBJECT

public:
    static constexpr int kLines = 10; // that the page shows

    ~LineList() override;

    int selected() const { return m_list.selected(); }

public slots:
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// Texts of one line.
    struct Line
    {
        QString name;
        QStringList columns;
    };

    /// \a columns of \a width pixels end at the right edge; \a pace: how the steps of a held key grow.
    LineList(int columns, int width, const KeyRepeat::Pace &pace, QWidget *parent);

    virtual QString title() const = 0;
    /// What a key without a caption does; stands to the right of the title.
    virtual QString hint() const { return {}; }
    virtual int lineCount() const = 0;
    virtual Line line(int index) const = 0;
    /// Column that is marked in the selected line; -1: none.
    virtual int markedColumn() const { return -1; }
    /// The selection moved, or what stands in the list changed.
    virtual void lineChosen() { }

    void selectLine(int index);
    /// Everything anew, after the lines changed.
    void showLines();
    /// As much of a text as a name has room for.
    QString fittedName(const QString &text) const;

    ScrollModel &list() override { return m_list; }
    void showList() override;
    std::vector<FrontKeys::Row> commonKeys() override;

private:
    std::unique_ptr<Ui::SetupPane> m_ui;
    QLabel *m_hint;
    QLabel *m_bar;
    QLabel *m_mark; // behind the marked column
    QScrollBar *m_scrollBar;
    std::array<LabelGrid::Row, kLines> m_labels;
    ScrollModel m_list { kLines };
};
