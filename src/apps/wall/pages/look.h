#ifndef WALL_PAGES_LOOK_H
#define WALL_PAGES_LOOK_H

#include <theme.h>

class QLabel;
class QWidget;

/// The look of the pages, made of the programs' theme.
namespace wall::look
{

using namespace theme;

inline const QColor warning(240, 176, 66);

/// Gives \a page the ground and the text colours of all pages.
void applyTo(QWidget *page);

/// A text that stands back, wrapped where it has to be.
QLabel *makeWrappedLabel(const QString &text, QWidget *parent);

/// Gives \a button, a check box or radio button of the library, a text that it has room for. Both
/// cut a text to the width that they have at this time.
template <class Button> void setWholeText(Button *button, const QString &text)
{
    button->ensurePolished();
    const int textWidth = button->fontMetrics().horizontalAdvance(text);
    button->setFixedSize(textWidth + button->indicatorWidth() + 6 * unit, controlHeight);
    button->setText(text);
}

} // namespace wall::look

#endif // WALL_PAGES_LOOK_H
