#ifndef NQTOOLBUTTON_H
#define NQTOOLBUTTON_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <QToolButton>

class QHBoxLayout;
class QLabel;
class QVBoxLayout;

/// The arrangement of an NQToolButton. Any other value builds nothing.
enum ToolButtonType : int {
    ImageAboveCaption = 0, ///< Top to bottom: a picture above a caption.
    ImageBesideImage = 1, ///< Left to right: two pictures.
};

/**
 * A tool button in one of two arrangements, chosen at construction: a picture above a caption, or
 * two pictures side by side.
 *
 * The caption widens the button with it, within limits, and is cut with "..." beyond them. Each
 * arrangement has its own colours and its own sheet; only those of the first can be set. The sheet
 * of the first is applied by each colour setter, whatever the arrangement. The button has no
 * signals of its own: connect to clicked().
 *
 * Sizes are pixels; any number is written into a sheet as it is, and a size that no widget can have
 * becomes the nearest one.
 */
class ORVANECONTROLS_EXPORT NQToolButton : public QToolButton
{
    Q_OBJECT

public:
    /// Builds a button of \a type, owned by \a parent.
    NQToolButton(QWidget *parent, ToolButtonType type);

    /// Sets the colours of \a type to their defaults, builds its labels and applies its sheet. The
    /// constructor calls it. Labels are built only into a button that has no layout yet.
    void createButtonByType(ToolButtonType type);

    /// Shows \a text, elided at its right end when it is wider than the button; the tool tip then
    /// holds the full text, otherwise it is empty. Measured now: a later resize does not elide
    /// anew. \see text()
    void setText(const QString &text);
    /// The full text last set, elided or not. \see setText()
    QString text() const;

    /// Sets the caption, and the width of a button with a picture above a caption: that of the
    /// caption, at least the minimum caption width, with the padding on each side. Width and height
    /// are fixed from then on, the height at its present value. A caption wider than the maximum is
    /// cut to it, ends in "..." and becomes the tool tip in full; one narrower than the minimum
    /// clears the tool tip. \see strDownText()
    void setStrDownText(QString text);
    /// The caption, with its "..." when it was cut. \see setStrDownText()
    QString strDownText() const;

    /// Sets the pictures of the enabled and of the disabled button by their paths, files or
    /// resources, and shows the one of the present state and the caption in its colour. Only with a
    /// picture above a caption. Here and in the two functions below a path without a picture shows
    /// none.
    void setUpLabelImg(QString normalPath, QString disabledPath);
    /// Enables or disables the button; picture and caption follow, which they do not after
    /// setEnabled().
    void setBtnEnabled(bool enabled);
    /// Sets the picture at the left of two; nothing happens in the other arrangement.
    void setLeftLabelImg(QString path);
    /// Sets the picture at the right of two; nothing happens in the other arrangement.
    void setRightLabelImg(QString path);

    /// Gives the picture above the caption a fixed size (default 50 by 42). This and the next two
    /// do nothing in the other arrangement.
    void setUpLabelSize(int width, int height);
    /// Gives the caption a fixed size.
    void setDownLabelSize(int width, int height);
    /// Gives the caption a fixed height (default 14).
    void setDownLabelHeight(int height);

    /// Sets the caption's colour on an enabled button (default 211,211,211) and shows it.
    void setDownLabelTextColor(const QColor &color);
    /// Sets the ground (default 69,69,69).
    void setTopToBottomNormalBtnColor(const QColor &color);
    /// Sets the ground under the pointer (default 64,64,64).
    void setTopToBottomHoverBtnColor(const QColor &color);
    /// Sets the ground while pressed or checked (default 38,38,38).
    void setTopToBottomPressedBtnColor(const QColor &color);
    /// Sets the ground while disabled (default 69,69,69).
    void setTopToBottomDisabledBtnColor(const QColor &color);
    /// Sets the border's colour under the pointer (default 93,93,93).
    void setTopToBottomHoverBtnBorderColor(const QColor &color);
    /// Sets the border's colour while pressed or checked (default 102,102,102).
    void setTopToBottomPressedBtnBorderColor(const QColor &color);
    /// Sets the radius of the corners (default 5). On two pictures it is only stored.
    void setTopToBottomBorderRadius(int radius);

    /// Sets the gap between picture and caption (default 6); a negative one stands for the style's.
    /// Only with a picture above a caption, as the margins.
    void setTopToBottomBtnVlayoutSpace(int space);
    /// Sets the margins around picture and caption (default 0, 3, 0, 7).
    void setTopToBottomBtnVlayoutMargins(int left, int top, int right, int bottom);
    /// Sets the maximum caption width (default 84) for the next setStrDownText().
    void setTopToBottomBtnMaxWidth(int width);
    /// Sets the minimum caption width (default 50) for the next setStrDownText().
    void setTopToBottomBtnMinWidth(int width);
    /// Sets the padding on each side of the caption (default 5) for the next setStrDownText().
    void setTopToBottomBtnBorderWidth(int width);

    /// The caption's colour on an enabled button.
    QColor downLabelTextColor() const;
    /// The ground.
    QColor topToBottomNormalBtnColor() const;
    /// The ground under the pointer.
    QColor topToBottomHoverBtnColor() const;
    /// The ground while pressed or checked.
    QColor topToBottomPressedBtnColor() const;
    /// The ground while disabled.
    QColor topToBottomDisabledBtnColor() const;
    /// The radius of the corners.
    int topToBottomBorderRadius() const;
    /// The border's colour under the pointer.
    QColor topToBottomHoverBtnBorderColor() const;
    /// The border's colour while pressed or checked.
    QColor topToBottomPressedBtnBorderColor() const;

    /// The picture at the right of two, null in the other arrangement. The button owns it.
    QLabel *getLabelRight() const;
    /// Shows or hides the picture at the right.
    void setLabelRightIsVisible(bool isVisible);

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

private:
    void initTopToBottomParam();
    void initLeftToRightParam();
    void createTopToBottomLabels();
    void createLeftToRightLabels();
    void setTopToBottomStyle();
    void setLeftToRightStyle();
    void setDownLabelStyle();
    void setDownLabelColor(const QColor &color);
    void showCaption(int captionWidth);

    ToolButtonType m_type{};
    QColor m_downLabelTextColor;
    QColor m_downLabelDisabledColor;
    QColor m_topToBottomNormalColor;
    QColor m_topToBottomHoverColor;
    QColor m_topToBottomPressedColor;
    QColor m_topToBottomDisabledColor;
    int m_topToBottomBorderRadius = 5;
    int m_topToBottomBorderWidth = 1;
    QColor m_topToBottomHoverBorderColor;
    QColor m_topToBottomPressedBorderColor;
    QLabel *m_upLabel = nullptr;
    QLabel *m_downLabel = nullptr;
    QString m_downText;
    QVBoxLayout *m_verticalLayout = nullptr;
    QString m_upImage;
    QString m_upDisabledImage;
    QColor m_leftToRightNormalColor;
    QColor m_leftToRightHoverColor;
    QColor m_leftToRightPressedColor;
    QColor m_leftToRightDisabledColor;
    int m_leftToRightBorderRadius = 5;
    QPointer<QLabel> m_rightLabel;
    QLabel *m_leftLabel = nullptr;
    QHBoxLayout *m_horizontalLayout = nullptr;
    int m_minimumWidth = 50;
    int m_minimumHeight = 70;
    int m_downLabelHeight = 14;
    int m_upLabelWidth = 50;
    int m_upLabelHeight = 42;
    int m_maximumCaptionWidth = 84;
    int m_minimumCaptionWidth = 50;
    int m_captionPadding = 5;
    QString m_text;
    QString m_spokenCaption; ///< The caption whole, as a screen reader speaks it.
};

#endif // NQTOOLBUTTON_H
