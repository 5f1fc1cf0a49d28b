#pragma once

#include "model/livedata.h"
#include "pages/functionpage.h"

#include <functional>
#include <type_traits>
#include <vector>

class QStackedWidget;

/// A measuring function with sub pages. Which there are, and which answer of one leads to which other, stands in the
/// table of the function. A sub page is made when it is first shown; from then on it is kept and refreshed.
class ViewContainer : public FunctionPage
{
    Q_OBJECT

public:
    /// Ties an answer of a sub page: the signal by which it asks for another one.
    using Way = std::function<void(ViewContainer *container, LivePage *page)>;

    /// A row of the table: the maker of a sub page, and the ways that lead on from it.
    struct SubPage
    {
        std::function<LivePage *(const LiveData &)> make;
        std::vector<Way> ways;
    };

    /// \a data outlives the page. The first row of \a pages is the page that the function opens with.
    ViewContainer(_quvera_ui_type type, SaveIdentity identity, const LiveData &data, std::vector<SubPage> pages,
                  QWidget *parent = nullptr);

    /// The sub page on top; null before the first one was shown.
    LivePage *currentPage() const;
    /// The row on top; -1 before the first one was shown.
    int currentIndex() const { return m_current; }
    int pageCount() const { return int(m_table.size()); }
    /// The sub page of a row, made now if it was not.
    LivePage *page(int index);
    /// Makes the first sub page current.
    void enter() override { showPage(0); }
    void showPage(int index);

public slots:
    void setPause() override;
    void setContinue() override;
    void init_parameter() override;
    void retranslateUi() override;
    void updateDisplay(void *data) override;
    void stopWatchChanged(const QString &text) override;

protected:
    /// A maker for a page of this class, with or without the measured data.
    template <typename P> static LivePage *make(const LiveData &data)
    {
        if constexpr (std::is_constructible_v<P, const LiveData &>)
            return new P(data);
        else
            return new P;
    }
    /// The answer \a signal of a page of class P leads to the row \a to.
    template <typename P> static Way way(void (P::*signal)(), int to)
    {
        return [signal, to](ViewContainer *container, LivePage *page) {
            connect(static_cast<P *>(page), signal, container, [container, to] { container->showPage(to); });
        };
    }
    /// Likewise; before it the container of class C does \a first.
    template <typename P, typename C> static Way way(void (P::*signal)(), int to, void (C::*first)())
    {
        return [signal, to, first](ViewContainer *container, LivePage *page) {
            connect(static_cast<P *>(page), signal, container, [container, to, first] {
                (static_cast<C *>(container)->*first)();
                container->showPage(to);
            });
        };
    }
    /// The answer \a signal is one that the container of class C gives on.
    template <typename P, typename C, typename... Args>
    static Way pass(void (P::*signal)(Args...), void (C::*on)(Args...))
    {
        return [signal, on](ViewContainer *container, LivePage *page) {
            connect(static_cast<P *>(page), signal, static_cast<C *>(container), on);
        };
    }

    /// The sub page of a row if it is made, else null.
    template <typename P> P *made(int index) const { return static_cast<P *>(m_pages[std::size_t(index)]); }
    /// A run begins: empties what the container itself keeps of one. Runs before the sub pages begin theirs.
    virtual void initDisplayParam() { }
    /// The page of this row was made: gives it what the container keeps for it.
    virtual void pageMade(int) { }
    /// The page of this row comes on top: brings it up to date with what it does not hear while it is hidden.
    virtual void aboutToShow(int) { }
    const DisplayRecords &shown() const { return m_data.shown(); }
    const LiveData &data() const { return m_data; }

    /// The captions are those of the sub pages.
    void showHold() override { }
    /// Only Save; everything else belongs to the sub pages or to the main window.
    bool pressKey(int key) override;
    void focusInEvent(QFocusEvent *event) override;
    /// Opens with the first sub page where none was asked for.
    void showEvent(QShowEvent *event) override;

private:
    LivePage *makePage(int index);
    void forMade(const std::function<void(LivePage &)> &call) const;

    const LiveData &m_data;
    const std::vector<SubPage> m_table;
    std::vector<LivePage *> m_pages; // by the rows; null: not made yet
    QStackedWidget *m_stack;
    int m_current = -1;
    bool m_refreshed = false; // since the run began
    QString m_stopWatch; // its last text, for pages that come later
};
