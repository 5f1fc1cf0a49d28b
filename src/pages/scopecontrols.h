#pragma once

#include "widgets/controls/keyrepeat.h"

#include <QObject>

class Btn2;
class Btn3;
class QLabel;
class ScopeWidget;

/// Cursor and zoom of a page with a scope picture: what the keys F2 to F4 and the arrows do there, and the labels that
/// show it. The arrows left and right move the cursor, held down in growing steps; up and down zoom.
class ScopeControls : public QObject
{
    Q_OBJECT

public:
    /// \a scale shows the zoom factor. All belong to the form of \a page.
    ScopeControls(QWidget *page, ScopeWidget *scope, Btn2 *cursorButton, Btn3 *zoomButton, QLabel *scale);

    bool cursorOn() const { return m_cursorOn; }
    bool zoomOn() const { return m_zoomOn; }
    /// Sample under the cursor, 0 to 599.
    int cursorIndex() const;
    void setCursorIndex(int index);

    /// A run begins: cursor on and at the left edge, zoom on.
    void reset();
    void toggleCursor();
    void toggleZoom();
    /// The zoom at which the nominal values of the settings fill the grid.
    void showDefaultZoom();
    void zoomIn();
    void zoomOut();

    /// Left (-1) or right (1) went down; false with the cursor off, when nothing happens.
    bool moveCursor(int direction);
    /// A key was let go.
    void release(int key);

signals:
    /// The cursor moved or was switched: values at the cursor are other ones.
    void cursorChanged();

private:
    void stepCursor(int step);
    void showCursor();
    void showZoom();
    void showScale();

    ScopeWidget *m_scope;
    Btn2 *m_cursorButton;
    Btn3 *m_zoomButton;
    QLabel *m_scale;
    KeyRepeat *m_repeat;
    bool m_cursorOn = true;
    bool m_zoomOn = false;
};
