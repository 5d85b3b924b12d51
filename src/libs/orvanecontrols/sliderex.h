#ifndef SLIDEREX_H
#define SLIDEREX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QSlider>
#include <QString>

/**
 * A slider drawn from four colours and four sizes, that leaves the mouse wheel alone by default.
 *
 * There is one sheet for each orientation; the orientation given to the constructor chooses it for
 * good, so QSlider::setOrientation() does not change the look. Appearance setters recompose the
 * sheet at once. Sizes are pixels; any value is written into the sheet as it is.
 */
class ORVANECONTROLS_EXPORT SliderEx : public QSlider
{
    Q_OBJECT

public:
    /// Builds a slider owned by \a parent, with the default look of \a orientation.
    SliderEx(QWidget *parent, Qt::Orientation orientation);

    /// Sets every appearance parameter to its default, switches the wheel off and applies the
    /// sheet. Range and value stay.
    void initSliderStyle();
    /// Composes the style sheet of the orientation from the stored values and applies it.
    void setSliderStyle();

    /// Sets the groove's colour right of the handle, below it in a vertical slider (default
    /// 99,99,99). \see addPageColor()
    void setAddPageColor(const QColor &color);
    /// The groove's colour right of or below the handle. \see setAddPageColor()
    QColor addPageColor() const;

    /// Sets the groove's colour left of the handle, above it in a vertical slider (default
    /// 153,153,153). \see subPageColor()
    void setSubPageColor(const QColor &color);
    /// The groove's colour left of or above the handle. \see setSubPageColor()
    QColor subPageColor() const;

    /// Sets the handle's colour (default 128,128,128). \see handleColor()
    void setHandleColor(const QColor &color);
    /// The handle's colour. \see setHandleColor()
    QColor handleColor() const;

    /// Sets the handle's colour under the pointer (default 182,182,182). \see handleHoverColor()
    void setHandleHoverColor(const QColor &color);
    /// The handle's colour under the pointer. \see setHandleHoverColor()
    QColor handleHoverColor() const;

    /// Sets the thickness of a vertical slider's groove in pixels (default 4). \see grooveWidth()
    void setGrooveWidth(int width);
    /// The thickness of a vertical slider's groove in pixels. \see setGrooveWidth()
    int grooveWidth() const;

    /// Sets the thickness of a horizontal slider's groove in pixels (default 4).
    /// \see grooveHeight()
    void setGrooveHeight(int height);
    /// The thickness of a horizontal slider's groove in pixels. \see setGrooveHeight()
    int grooveHeight() const;

    /// Sets the handle's width in pixels (default 10, vertical 14). \see handleWidth()
    void setHandleWidth(int width);
    /// The handle's width in pixels. \see setHandleWidth()
    int handleWidth() const;

    /// Sets the handle's height in pixels (default 14, vertical 10). \see handleHeight()
    void setHandleHeight(int height);
    /// The handle's height in pixels. \see setHandleHeight()
    int handleHeight() const;

    /// Lets the mouse wheel move the slider (default false).
    void setWheelEventEffective(bool effective);

    /// Swallows wheel events, of the slider itself and of whatever else it was made to watch,
    /// unless setWheelEventEffective() lets them through. Every other event goes on.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// A mouse button was released on the slider, which has not acted on it yet and may be deleted
    /// here.
    void sliderMouseRealse();

protected:
    /// Emits sliderMouseRealse(), whatever the button, and then ends the drag, if the slider still
    /// exists.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Qt::Orientation m_orientation;
    QColor m_addPageColor;
    QColor m_subPageColor;
    QColor m_handleColor;
    QColor m_handleHoverColor;
    int m_grooveWidth{};
    int m_grooveHeight{};
    int m_handleWidth{};
    int m_handleHeight{};
    bool m_isWheelEventEffective{};
};

#endif // SLIDEREX_H
