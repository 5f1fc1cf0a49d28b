#include "memory/coverview.h"

#include "widgets/controls/frontkeys.h"
#include "widgets/controls/readingmarks.h"
#include "widgets/text/keymap.h"

#include <QKeyEvent>

CoverView::CoverView(QWidget *page) : QWidget(page->window()), m_page(page)
{
    setAttribute(Qt::WA_DeleteOnClose);
    ReadingMarks::setCover(this, {});
    setFocusPolicy(Qt::StrongFocus);
    setGeometry(page->window()->rect());
}

void CoverView::cover()
{
    show();
    raise();
    setFocus();
}

void CoverView::leave()
{
    QWidget *const page = m_page;
    close();
    page->setFocus();
}

bool CoverView::pressKey(int key)
{
    if (key == Qt::Key_F5)
        leave();
    return key == Qt::Key_F5;
}

void CoverView::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(FrontKeys::press(*event, [this](int key) { return pressKey(key); }));
}

void CoverView::keyReleaseEvent(QKeyEvent *event)
{
    keyMap::keyReleaseMap(event->key());
    event->ignore();
}
