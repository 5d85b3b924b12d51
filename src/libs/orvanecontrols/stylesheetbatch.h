#ifndef STYLESHEETBATCH_H
#define STYLESHEETBATCH_H

#include "orvanecontrolsglobal.h"

#include <QtGlobal>

#include <memory>

class QWidget;

namespace orvane
{
class HeldSheets;
}

/**
 * Sets many colours, borders and images of one widget at the price of one.
 *
 * Each of the library's setters that changes a look composes the widget's sheet anew and applies
 * it at once, which makes Qt style the widget and all its children again. While a batch lives, the
 * sheets for its widget, and for the children inside the widget's window, wait; when the batch
 * ends, the last sheet of each is applied once:
 *
 * \code
 * {
 *     StyleSheetBatch batch(checkBox);
 *     checkBox->setFontColor(Qt::white);
 *     checkBox->setDisabledFontColor(Qt::gray);
 *     checkBox->setIndicatorWidth(20);
 * } // the widget is styled here
 * \endcode
 *
 * What setters store, and what getters return, is up to date at once; only
 * \c QWidget::styleSheet() and the painted look wait. A text is elided with the font in force when
 * it is set, so set texts behind the batch if the batch changes fonts. Sheets that the host sets by
 * \c QWidget::setStyleSheet() itself do not wait, and the batch's own replace them at its end.
 *
 * Batches may be nested or overlap: where two cover the same widget, the one that began first
 * holds its sheets until it ends, and hands them on to the other if that lives longer. The widget
 * and its children may die before the batch. A batch belongs to the thread of the widgets.
 */
class ORVANECONTROLS_EXPORT StyleSheetBatch
{
public:
    /// Begins to hold back the sheets of \a widget, which stays the caller's. A null widget holds
    /// nothing back.
    explicit StyleSheetBatch(QWidget *widget);
    /// Applies the last sheet of each widget that one was held back for.
    ~StyleSheetBatch();

private:
    Q_DISABLE_COPY(StyleSheetBatch)

    std::unique_ptr<orvane::HeldSheets> m_heldSheets;
};

#endif // STYLESHEETBATCH_H
