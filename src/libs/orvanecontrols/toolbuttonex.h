#ifndef TOOLBUTTONEX_H
#define TOOLBUTTONEX_H

#include "buttontype.h"
#include "labelex.h"
#include "orvanecontrolsglobal.h"
#include "structcabinet.h"

#include <QColor>
#include <QMap>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QToolButton>
#include <QVariant>

#include <memory>

class QDrag;
class QHBoxLayout;
class QLabel;
class QMimeData;

namespace orvane
{
class SheetText;
struct CommandLook;
} // namespace orvane

/**
 * The library's all-purpose tool button: one class, eight looks chosen by its ButtonType.
 *
 * Two looks combine child labels, two are commands, one adds cabinets, two stand for a cabinet and
 * one is plain. Each look has its own group of properties; their setters exist for every button,
 * but apply a style sheet only to a button of that look, except where a setter says otherwise. The
 * look is fixed at construction; setButtonType() can only switch to the two command looks.
 *
 * A button of a cabinet kind (CabinetType, CabinetModelType) paints a rectangle in the model's
 * proportions with the model's size under it, and with the count on hand when that is switched on.
 * It reports presses and releases with a copy of its record, and a CabinetType button that draws
 * its count can be dragged: the drag carries the record's bytes under the format "CabinetInfo", for
 * a receiver in the same process. Any button can be made a sender, whose drag carries a text.
 *
 * The signals that carry a record are direct only: StructCabinet is not registered with Qt's
 * meta-type system. The button may be deleted in its own signals. Sizes are pixels; any value is
 * written into a sheet as it is.
 */
class ORVANECONTROLS_EXPORT ToolButtonEx : public QToolButton
{
    Q_OBJECT

public:
    /// Builds a button of \a type, owned by \a parent. The texts are those of the top-to-bottom
    /// look. Any other type is kept and looks as DefaultType.
    ToolButtonEx(QWidget *parent, ButtonType type, QString upText, QString downText);
    ~ToolButtonEx() override;

    /// Builds what a button of \a type consists of, gives that look its defaults and applies its
    /// sheet; the type stays. The constructor calls it. Labels are built only into a button that
    /// has no layout yet. Any other type does nothing.
    void createButtonByType(ButtonType type);
    /// Stores the type. The two command types also get their default colours and their sheet; for
    /// any other, neither children nor sheet change.
    void setButtonType(const ButtonType &type);
    /// The type. \see setButtonType()
    ButtonType buttonType() const;

    /// Shows \a text, elided at its right end when it is wider than the button; the tool tip then
    /// holds the full text, otherwise it is empty. Measured now: a later resize does not elide
    /// anew.
    void setText(const QString &text);
    /// The full text last set, elided or not.
    QString text() const;
    /// Changes the check state; a top-to-bottom button also changes its sheet, checkable or not.
    void setChecked(bool checked);
    /// Attaches any value of the host's to the button.
    void setData(QVariant data);
    /// The host's value, invalid until set.
    QVariant data() const;
    /// Keeps a flag for the host (default true).
    void setPressEventUseful(bool useful);

    /// Applies the sheet of the add-cabinet look to a button of any type.
    void setAddCabinetStyle();
    /// Applies the sheet of the cabinet kinds to a button of any type.
    void setCanbinetStyle();
    /// Applies the right label's sheet: pressed colour while the button is pressed, else normal.
    void setRightLabelStyle();
    /// Stores both picture paths and shows the one of the present state, if there is a left label.
    /// A path without a picture shows none.
    void setLeftLabelStyle(QString normalPath, QString pressedPath);
    /// Gives the left label, if there is one, \a sheet as its whole sheet.
    void setLeftLabelImg(QString sheet);
    /// Shows or hides the smaller text of the left-to-right look (hidden at first).
    void setRightBottomLableVisible(bool visible);
    /// The label of the left-to-right look's picture, null on other looks and once it is deleted.
    QLabel *pLabelLeft() const;
    /// Puts \a label in the place of pLabelLeft(): the setters then reach that one. Neither label
    /// changes its parent or its place, and null is taken.
    void setPLabelLeft(QLabel *label);
    /// The label of the left-to-right look's text, null on other looks and once it is deleted.
    LabelEx *pLabelRight() const;
    /// Puts \a label in the place of pLabelRight(), as setPLabelLeft() does.
    void setPLabelRight(LabelEx *label);

    /// What a release does on a cabinet kind, for the host to call. While the button is pressed:
    /// reports the cabinet as taken when its count is drawn, else the model as added; then shows
    /// the add cursor and ends the press.
    void setCabinetToAddModel();

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

    // Top-to-bottom look: an upper and a lower text.
    /// Sets the upper text.
    void setStrUpText(const QString &text);
    /// The upper text.
    QString strUpText() const;
    /// Sets the lower text.
    void setStrDownText(const QString &text);
    /// The lower text.
    QString strDownText() const;
    /// Sets the upper text's colour (default white).
    void setUpLabelTextColor(const QColor &color);
    /// The upper text's colour.
    QColor upLabelTextColor() const;
    /// Sets the lower text's colour (default white).
    void setDownLabelTextColor(const QColor &color);
    /// The lower text's colour.
    QColor downLabelTextColor() const;
    /// Sets the background (default 99,99,99).
    void setTopToBottomNormalBgColor(const QColor &color);
    /// The background.
    QColor topToBottomNormalBgColor() const;
    /// Sets the background while pressed or checked (default 66,145,240).
    void setTopToBottomPressedBgColor(const QColor &color);
    /// The background while pressed or checked.
    QColor topToBottomPressedBgColor() const;
    /// Sets the radius of the corners (default 5).
    void setTopToBottomBorderRadius(int radius);
    /// The radius of the corners.
    int topToBottomBorderRadius() const;

    // Left-to-right look: a picture, a text and a smaller text under it.
    /// Sets the text at the right, elided to its label's present width.
    void setStrRightText(const QString &text);
    /// The text at the right.
    QString strRightText() const;
    /// Sets the smaller text.
    void setStrRightBottomText(const QString &text);
    /// Sets the path of the picture.
    void setStrLeftImgPathNormal(const QString &path);
    /// The path of the picture.
    QString strLeftImgPathNormal() const;
    /// Sets the path of the picture of the pressed button.
    void setStrLeftImgPathPressed(const QString &path);
    /// The path of the picture of the pressed button.
    QString strLeftImgPathPressed() const;
    /// Sets the colour of the text at the right (default 51,51,51).
    void setRightLabelTextNormalColor(const QColor &color);
    /// The colour of the text at the right.
    QColor rightLabelTextNormalColor() const;
    /// Sets that text's colour under the pointer and while pressed (default 66,145,240).
    void setRightLabelTextPressedColor(const QColor &color);
    /// That text's colour under the pointer and while pressed.
    QColor rightLabelTextPressedColor() const;
    /// Sets the font text of the text at the right (default DefineCommonData::getBiggerFont()).
    void setRightLabelTextFont(const QString &font);
    /// The font text of the text at the right.
    QString rightLabelTextFont() const;
    /// Sets the background (default white).
    void setLeftToRightNormalBgColor(const QColor &color);
    /// The background.
    QColor leftToRightNormalBgColor() const;
    /// Sets the background while pressed (default white).
    void setLeftToRightPressedBgColor(const QColor &color);
    /// The background while pressed.
    QColor leftToRightPressedBgColor() const;
    /// Sets the radius of the corners (default 0).
    void setLeftToRightBorderRadius(int radius);
    /// The radius of the corners.
    int leftToRightBorderRadius() const;
    /// Sets the gap between picture and texts in pixels (default 5); a negative one stands for the
    /// style's.
    void setLeftToRightLayoutSpace(const int &space);
    /// The gap between picture and texts.
    int leftToRightLayoutSpace() const;

    // Activated look: a command.
    /// Sets the background (default 66,145,240).
    void setActivatedNormalBgColor(const QColor &color);
    /// The background.
    QColor activatedNormalBgColor() const;
    /// Sets the background under the pointer (default 72,109,154).
    void setActivatedHoverBgColor(const QColor &color);
    /// The background under the pointer.
    QColor activatedHoverBgColor() const;
    /// Sets the background while pressed (default 42,77,120).
    void setActivatedPressedBgColor(const QColor &color);
    /// The background while pressed.
    QColor activatedPressedBgColor() const;
    /// Sets the background while disabled (default 85,85,85).
    void setActivatedDisabledBgColor(const QColor &color);
    /// The background while disabled.
    QColor activatedDisabledBgColor() const;
    /// Sets the text colour (default 210,210,210).
    void setActivatedNormalFontColor(const QColor &color);
    /// The text colour.
    QColor activatedNormalFontColor() const;
    /// Sets the text colour under the pointer (default 210,210,210).
    void setActivatedHoverFontColor(const QColor &color);
    /// The text colour under the pointer.
    QColor activatedHoverFontColor() const;
    /// Sets the text colour while pressed (default 210,210,210).
    void setActivatedPressedFontColor(const QColor &color);
    /// The text colour while pressed.
    QColor activatedPressedFontColor() const;
    /// Sets the text colour while disabled (default 130,130,130).
    void setActivatedDisabledFontColor(const QColor &color);
    /// The text colour while disabled.
    QColor activatedDisabledFontColor() const;
    /// Sets the radius of the corners (default 5).
    void setActivatedBorderRadius(int radius);
    /// The radius of the corners.
    int activatedBorderRadius() const;

    // Not-activated look: a command.
    /// Sets the background (default 99,99,99).
    void setNoActivatedNormalBgColor(const QColor &color);
    /// The background.
    QColor noActivatedNormalBgColor() const;
    /// Sets the background under the pointer (default 87,90,92).
    void setNoActivatedHoverBgColor(const QColor &color);
    /// The background under the pointer.
    QColor noActivatedHoverBgColor() const;
    /// Sets the background while pressed (default 53,54,55).
    void setNoActivatedPressedBgColor(const QColor &color);
    /// The background while pressed.
    QColor noActivatedPressedBgColor() const;
    /// Sets the background while disabled (default 85,85,85).
    void setNoActivatedDisabledBgColor(const QColor &color);
    /// The background while disabled.
    QColor noActivatedDisabledBgColor() const;
    /// Sets the text colour (default 210,210,210).
    void setNoActivatedNormalFontColor(const QColor &color);
    /// The text colour.
    QColor noActivatedNormalFontColor() const;
    /// Sets the text colour under the pointer (default 210,210,210).
    void setNoActivatedHoverFontColor(const QColor &color);
    /// The text colour under the pointer.
    QColor noActivatedHoverFontColor() const;
    /// Sets the text colour while pressed (default 210,210,210).
    void setNoActivatedPressedFontColor(const QColor &color);
    /// The text colour while pressed.
    QColor noActivatedPressedFontColor() const;
    /// Sets the text colour while disabled (default 130,130,130).
    void setNoActivatedDisabledFontColor(const QColor &color);
    /// The text colour while disabled.
    QColor noActivatedDisabledFontColor() const;
    /// Sets the radius of the corners (default 5).
    void setNoActivatedBorderRadius(int radius);
    /// The radius of the corners.
    int noActivatedBorderRadius() const;
    /// Sets the padding at the left in pixels (default 0) and applies the not-activated look to a
    /// button of any type.
    void setNoActivatedLeftPadding(int padding);
    /// The padding at the left.
    int getNoActivatedLeftPadding() const;

    // Cabinet kinds.
    /// Sets the model's width in pixels of the wall; a value outside 1 to 65536 becomes the nearest
    /// of them.
    void setCabinetWidth(int width);
    /// The model's width, 0 until set.
    int cabinetWidth() const;
    /// Sets the model's height in pixels of the wall; a value outside 1 to 65536 becomes the
    /// nearest of them.
    void setCabinetHeight(int height);
    /// The model's height, 0 until set.
    int cabinetHeight() const;
    /// Sets width and height as the two functions above do; on a CabinetModelType button also the
    /// tool tip, to the cabinet name, "_" and the size as given.
    void setCabinetSize(int width, int height);
    /// Sets the count on hand, unless \a count is negative, and enables the button exactly when the
    /// count is above 0.
    void setCabinetCount(int count);
    /// The count on hand.
    int cabinetCount() const;
    /// Keeps the count, any number, that the host began with (-1 until set).
    void setCabinetInitCount(int count);
    /// The count that the host began with (-1 until set).
    int getCabinetInitCount() const;
    /// Sets whether the count is drawn, which also marks a cabinet that lies in a row (default
    /// false).
    void setIsDrawCabinetCount(bool isDraw);
    /// Whether the count is drawn, which also marks a cabinet that lies in a row (default false).
    bool isDrawCabinetCount() const;
    /// Sets the maker's name.
    void setMakerName(const QString &name);
    /// The maker's name.
    QString getMakerName() const;
    /// The maker's name.
    QString makerName() const;
    /// Sets the cabinet's name.
    void setCabinetName(const QString &name);
    /// The cabinet's name.
    QString getCabinetName() const;
    /// The cabinet's name.
    QString cabinetName() const;
    /// Sets the drawing width in the host's layout view in pixels (default 50).
    void setCabinetuisize(int size);
    /// The drawing width in the host's layout view (default 50).
    int getCabinetuisize() const;
    /// Sets the drawing height in the host's layout view in pixels (default 50).
    void setCabinetuiHsize(int size);
    /// The drawing height in the host's layout view (default 50).
    int getCabinetuiHsize() const;
    /// Sets the weight in the host's unit (default 5); any number is kept.
    void setCabinetweight(int weight);
    /// The weight (default 5).
    int getCabinetweight() const;
    /// Sets the power in the host's unit (default 0.01); any number is kept.
    void setCabinetpower(float power);
    /// The power (default 0.01).
    float getCabinetpower() const;
    /// Sets the voltage in the host's unit (default 0.01); any number is kept.
    void setCabinetVoltage(float voltage);
    /// The voltage (default 0.01).
    float getCabinetVoltage() const;
    /// Sets the pixel pitch in the host's unit (default 1); any number is kept.
    void setCabinetPointspace(int pointSpace);
    /// The pixel pitch (default 1).
    int getCabinetPointspace() const;
    /// Sets the path of the configuration file.
    void setConfigFilePath(const QString &path);
    /// The path of the configuration file.
    QString getConfigFilePath() const;
    /// Stores the whole record that the signals hand back. A count of zero or more becomes the
    /// button's, without enabling or disabling it.
    void setCabnetInfo(const StructCabinet &info);
    /// The stored record.
    StructCabinet getCabnetInfo() const;
    /// Sets the background (default 69,69,69).
    void setCabinetNormalBgColor(const QColor &color);
    /// Sets the background under the pointer (default 101,124,152). A button of another kind takes
    /// the cabinet look and keeps the colour it had.
    void setCabinetHoverBgColor(const QColor &color);
    /// Sets the background while pressed (default 66,145,240).
    void setCabinetPressedBgColor(const QColor &color);
    /// Sets the text colour (default black).
    void setCabinetNormalFontColor(const QColor &color);
    /// Sets the text colour under the pointer (default 218,218,218).
    void setCabinetHoverFontColor(const QColor &color);
    /// Sets the text colour while pressed (default 218,218,218).
    void setCabinetPressedFontColor(const QColor &color);
    /// Sets the border colour under the pointer (default 67,130,206).
    void setCabinetHoverBorderColor(const QColor &color);
    /// Sets the border colour while pressed (default 7,103,170).
    void setCabinetPressedBorderColor(const QColor &color);
    /// Sets the border width in pixels (default 0) and applies the cabinet look to a button of any
    /// kind.
    void setCanbinetNormalBorder(int width);
    /// Sets the border width under the pointer in pixels (default 1).
    void setCanbinetHoverBorder(int width);
    /// Sets the border width while pressed in pixels (default 1).
    void setCanbinetPressedBorder(int width);

    // Sender drag, for any kind.
    /// Sets whether the button can be dragged as a sender (default false).
    void setBIsVsender(bool isVsender);
    /// Sets the sender drag flag (default false); a move too short for a drag clears it.
    void setBVsenderDrag(bool isDrag);
    /// Sets the text that a sender drag carries.
    void setVsenderText(const QString &text);
    /// Sets whether the sender has data, which chooses the drag's picture (default false).
    void setIsHasData(bool hasData);
    /// Whether the sender has data, which chooses the drag's picture (default false).
    bool getIsHasData() const;
    /// Sets whether the pointer changes its shape over the button (default false).
    void setIsChangeMouseStyle(bool change);

Q_SIGNALS:
    /// A press on a cabinet kind that does not draw its count was released: size, maker name,
    /// cabinet name, drawing width and height, weight, power, voltage, pixel pitch and the path of
    /// the configuration file.
    void notifyAddCabineModel(QSize size, QString makerName, QString cabinetName, int uiSize,
                              int uiHSize, int weight, float power, float voltage, int pointSpace,
                              QString configFilePath);
    /// A press on a cabinet kind that draws its count was released. The record's weight, power,
    /// voltage and drawing size are the button's present ones, all else is as it was stored.
    void signal_notifyAddBeenTakenCabinetModel(StructCabinet info);
    /// A cabinet kind that draws its count was pressed with the left button.
    void signal_notifyChangedPortInfo(StructCabinet info);

protected:
    /// Paints the button; on the cabinet kinds also the cabinet, its size and, when switched on,
    /// its count.
    void paintEvent(QPaintEvent *event) override;
    /// Presses the button. The left button on a cabinet kind that draws its count emits
    /// signal_notifyChangedPortInfo().
    void mousePressEvent(QMouseEvent *event) override;
    /// Releases the button, which emits clicked() as on every button; a cabinet kind then does
    /// setCabinetToAddModel(), if it still exists.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Starts the drag of a sender, or of a CabinetType button that draws its count, once the
    /// pointer with the left button down is as far away as the button is wide, across and down
    /// added: from the press on a cabinet kind, and from the top left corner on any other. Returns
    /// when the drag has ended.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Shows the hovered look, and the library's own cursor if setIsChangeMouseStyle() is on.
    void enterEvent(QEvent *event) override;
    /// Shows the normal look, and the arrow cursor if setIsChangeMouseStyle() is on.
    void leaveEvent(QEvent *event) override;

private:
    bool isCabinet() const;
    QRect cabinetRect(QSize area);
    bool isBeyondDragThreshold(const QMouseEvent &event) const;
    void initTopToBottomParam();
    void initLeftToRightParam();
    void initActivatedParam();
    void initNoActivatedParam();
    void initCabinetParam();
    void createTopToBottomLabels();
    void createLeftToRightLabels();
    void setTopToBottomStyle();
    void setUpLabelStyle();
    void setDownLabelStyle();
    void setLeftToRightStyle();
    void setRightLabelColor(const QColor &color);
    void setActivatedStyle();
    void setNoActivatedStyle();
    orvane::SheetText plainCabinetRule() const;
    void dragSender();
    void dragCabinet();
    void runDrag(QMimeData *data, const QPixmap &picture);

    ButtonType m_type = DefaultType;
    QString m_text;
    QVariant m_data;
    bool m_pressEventUseful = true;

    QString m_upText;
    QString m_downText;
    QColor m_upLabelTextColor;
    QColor m_downLabelTextColor;
    QColor m_topToBottomNormalBgColor;
    QColor m_topToBottomPressedBgColor;
    int m_topToBottomBorderRadius{};
    QLabel *m_upLabel = nullptr;
    QLabel *m_downLabel = nullptr;

    QString m_rightText;
    QString m_rightBottomText;
    QString m_leftImgPathNormal;
    QString m_leftImgPathPressed;
    QColor m_rightLabelTextNormalColor;
    QColor m_rightLabelTextPressedColor;
    QColor m_leftToRightNormalBgColor;
    QColor m_leftToRightPressedBgColor;
    int m_leftToRightBorderRadius{};
    int m_leftToRightLayoutSpace{};
    QString m_rightLabelTextFont;
    QPointer<QLabel> m_leftLabel;
    QPointer<LabelEx> m_rightLabel;
    QLabel *m_rightBottomLabel = nullptr;
    QHBoxLayout *m_leftToRightLayout = nullptr;

    std::unique_ptr<orvane::CommandLook> m_activatedLook;
    std::unique_ptr<orvane::CommandLook> m_noActivatedLook;
    int m_noActivatedLeftPadding{};

    int m_cabinetWidth = 0;
    int m_cabinetHeight = 0;
    int m_cabinetCount = 0;
    int m_cabinetInitCount = -1;
    bool m_isDrawCabinetCount = false;
    QString m_makerName;
    QString m_cabinetName;
    int m_cabinetUiSize = 50;
    int m_cabinetUiHSize = 50;
    int m_cabinetWeight = 5;
    float m_cabinetPower = 0.01F;
    float m_cabinetVoltage = 0.01F;
    int m_cabinetPointSpace = 1;
    QString m_configFilePath;
    StructCabinet m_cabinetInfo{};
    QColor m_cabinetNormalBgColor;
    QColor m_cabinetHoverBgColor;
    QColor m_cabinetPressedBgColor;
    QColor m_cabinetDisabledBgColor;
    QColor m_cabinetNormalFontColor;
    QColor m_cabinetHoverFontColor;
    QColor m_cabinetPressedFontColor;
    QColor m_cabinetHoverBorderColor;
    QColor m_cabinetPressedBorderColor;
    int m_cabinetNormalBorder{};
    int m_cabinetHoverBorder{};
    int m_cabinetPressedBorder{};
    QMap<int, double> m_sizeToScale; ///< The steps once meant; the painter goes by its formula.

    bool m_isVsender = false;
    bool m_vsenderDrag = false;
    QString m_vsenderText;
    bool m_isHasData = false;
    bool m_isChangeMouseStyle = false;

    bool m_isPressed = false;
    QPoint m_pressPoint;
    bool m_isCabinetDrag = false;
    QPointer<QDrag> m_drag;
    int m_textBandHeight = 0;
    float m_scale = 0.0F;
};

#endif // TOOLBUTTONEX_H
