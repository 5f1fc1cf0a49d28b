#pragma once

#include "pages/viewcontainer.h"

#include <vector>

/// A stack of pages that measure nothing: set-up, user. Its table is that of any container; besides, an answer of a
/// page may lead back to whichever page opened it. A page begins anew each time it comes on top: it takes what is
/// stored then, and what was left unfinished on it is gone.
class PageStack : public ViewContainer
{
    Q_OBJECT

public:
    using ViewContainer::ViewContainer;

    /// The page that opened the one on top; the first page if none did.
    void showPrevious();

protected:
    /// The answer \a signal of a page of class P leads back to the page that opened it.
    template <typename P> static Way back(void (P::*signal)())
    {
        return [signal](ViewContainer *container, LivePage *page) {
            connect(static_cast<P *>(page), signal, static_cast<PageStack *>(container), &PageStack::showPrevious);
        };
    }

    /// Keeps the way and lets the page begin anew; whoever overrides it calls it.
    void aboutToShow(int row) override;

private:
    std::vector<int> m_way; // rows from the first page to the one on top, each once
};
