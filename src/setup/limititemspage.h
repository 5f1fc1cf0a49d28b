#pragma once

#include "setup/limitdraft.h"
#include "setup/linelist.h"

/// The items of one limit set with their chief values; each opens the page of its values.
class LimitItemsPage : public LineList
{
    Q_OBJECT

public:
    /// \a draft outlives the page.
    explicit LimitItemsPage(LimitDraft &draft, QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void editLimits(int item); // into limitItems()
    void stored();
    void cancelled();

protected:
    QString title() const override;
    QString hint() const override { return tr("Enter: values"); }
    int lineCount() const override;
    Line line(int index) const override;
    void lineChosen() override;

private:
    void openItem() { emit editLimits(selected()); }
    void ok();

    LimitDraft &m_draft;
};
