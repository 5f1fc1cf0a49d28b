#include "board/screenshot.h"

#include <QApplication>
#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <algorithm>

ScreenShot *ScreenShot::m_instance = nullptr;

namespace {

/// Layers of top-level windows: later ones cover earlier ones.
enum Layer { Splash, Page, ActivePage, Child, Modal, ActiveModal, Popup, ActivePopup };

Layer layerOf(const QWidget *window)
{
    if (window == QApplication::activePopupWidget())
        return ActivePopup;
    if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip)
        return Popup;
    if (window == QApplication::activeModalWidget())
        return ActiveModal;
    if (window->isModal())
        return Modal;
    if (window->windowType() == Qt::SplashScreen)
        return Splash; // it is never closed, the main window covers it
    if (window->parentWidget())
        return Child;
    return window->isActiveWindow() ? ActivePage : Page;
}

QWidgetList visibleWindows()
{
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() != Qt::Desktop)
            windows << window;
    }
    return windows;
}

/// The instrument's own screen, in pixels of the whole one: that of its pages, which a dialog does not widen.
QRect instrumentArea(const QWidgetList &windows)
{
    QRect pages, all;
    for (const QWidget *window : windows) {
        const Layer layer = layerOf(window);
        if (layer == Page || layer == ActivePage)
            pages |= window->geometry();
        all |= window->geometry();
    }
    return pages.isEmpty() ? all : pages;
}

QPixmap composeWindows(QWidgetList windows, const QRect &area)
{
    if (area.isEmpty())
        return {};
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget *a, const QWidget *b) { return layerOf(a) < layerOf(b); });
    QPixmap picture(area.size());
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (QWidget *window : qAsConst(windows))
        painter.drawPixmap(window->geometry().topLeft() - area.topLeft(), window->grab());
    return picture;
}

} // namespace

void ScreenShot::initScreenShot()
{
    if (!m_instance)
        m_instance = new ScreenShot;
}

QPixmap ScreenShot::getScreenPixmap()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const QWidgetList windows = visibleWindows();
    const QRect area = instrumentArea(windows);
    // A screen that the instrument shares shows other programs, which nobody has asked for.
    const bool shared = screen && !area.isEmpty() && !area.contains(screen->geometry());
    const QPixmap picture = screen && !shared ? screen->grabWindow(0) : QPixmap();
    return picture.isNull() ? composeWindows(windows, area) : picture;
}

QByteArray ScreenShot::getScreenPng()
{
    return png(getScreenPixmap().toImage());
}

QByteArray ScreenShot::png(const QImage &picture)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!picture.isNull())
        picture.save(&buffer, "png");
    return buffer.data();
}

void ScreenShot::grabScreenPixmap()
{
    emit screenPixmap(getScreenPixmap());
}
