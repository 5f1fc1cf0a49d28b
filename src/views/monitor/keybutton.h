#pragma once

class QWidget;
class SoftKeyButton;

namespace KeyButton {

/// Puts a button that paints its own choices over the soft key F\a number, in place of the plain label of \a page's
/// form, whose name and place it takes. To be called before the page is dressed.
void place(QWidget *page, int number, SoftKeyButton *button);

} // namespace KeyButton
