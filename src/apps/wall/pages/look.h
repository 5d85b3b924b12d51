#ifndef WALL_PAGES_LOOK_H
#define WALL_PAGES_LOOK_H

#include <pushbuttonex.h>

#include <QColor>

class QAbstractScrollArea;
class QLabel;
class QWidget;

/// The look of the pages: three greys and one accent, one control height, a rhythm of 4 pixels.
///
/// It is made of palettes and sizes, never of a style sheet, so that nothing cascades into the
/// library's widgets.
namespace wall::look
{

inline const QColor well(43, 43, 43); ///< Inputs, lists and previews.
inline const QColor ground(56, 56, 56); ///< Pages.
inline const QColor raised(69, 69, 69); ///< Panels, and hovered and current rows.
inline const QColor line(80, 80, 80); ///< Borders and separators.
inline const QColor text(210, 210, 210);
inline const QColor quietText(160, 160, 160);
inline const QColor accent(66, 145, 240); ///< Selection, focus and the main action; nothing else.
inline const QColor warning(240, 176, 66);

constexpr int unit = 4;
constexpr int gap = 2 * unit;
constexpr int margin = 4 * unit;
constexpr int controlHeight = 7 * unit;

/// Gives \a page the ground and the text colours of all pages.
void applyTo(QWidget *page);

/// A heading, told from other texts by its weight.
QLabel *makeHeading(const QString &text, QWidget *parent);
/// A text that stands back, wrapped where it has to be.
QLabel *makeQuietLabel(const QString &text, QWidget *parent);
/// Gives the texts of \a label another colour.
void setTextColor(QLabel *label, const QColor &color);

/// A button that is as wide as its text needs.
PushButtonEx *makeButton(const QString &text, BtnType type, QWidget *parent);

/// Gives \a button, a check box or radio button of the library, a text that it has room for. Both
/// cut a text to the width that they have at this time.
template <class Button> void setWholeText(Button *button, const QString &text)
{
    button->ensurePolished();
    const int textWidth = button->fontMetrics().horizontalAdvance(text);
    button->setFixedSize(textWidth + button->indicatorWidth() + 6 * unit, controlHeight);
    button->setText(text);
}

/// Puts the library's look on both scroll bars of \a area.
void styleScrollBars(QAbstractScrollArea *area);

} // namespace wall::look

#endif // WALL_PAGES_LOOK_H
