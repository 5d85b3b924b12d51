#include "widgetcontrollboard.h"

#include "buttongroupex.h"
#include "internal/livelist.h"
#include "internal/pushbuttonwithimgex.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "shapewidgetcontent.h"
#include "toolbuttonex.h"
#include "widgetboard.h"
#include "widgetcontent.h"
#include "widgetinfo.h"

#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

namespace
{

constexpr int stripWidth = 230;
constexpr int stripHeight = 70;
constexpr int pictureButtonSide = 40;
constexpr int copyColumns = 3;
constexpr int leaveDelay = 300; // milliseconds
constexpr int popupExtraWidth = 10;
constexpr int popupExtraHeight = 30;

/// What a screen reader speaks for \a source, which may show a picture alone.
QString spokenText(QWidget *source)
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(source);
    const QString text = accessible ? accessible->text(QAccessible::Name) : QString();
    return text.isEmpty() ? source->toolTip() : text;
}

} // namespace

WidgetControllBoard::WidgetControllBoard(QWidget *parent)
    : QWidget(parent)
{
    createButtonGroup();
    createShapeContent();
    createPopup();
    createTimer();
    m_popup->dropDownBtn()->installEventFilter(this);
    m_buttonGroup->installEventFilter(this);
    installEventFilter(this);
    setMouseTracking(true);
}

WidgetControllBoard::~WidgetControllBoard()
{
    // The popup has no parent, so it goes here, and what still happens is of no interest.
    m_popup->dropDownBtn()->removeEventFilter(this);
    m_buttonGroup->removeEventFilter(this);
    removeEventFilter(this);
    m_popup.reset();
}

void WidgetControllBoard::setLsWidget(const QList<QWidget *> &list)
{
    m_lsWidget = orvane::liveList(list);
    auto *content = new WidgetContent(this);
    connect(content, &WidgetContent::notifyShpeWidgetHide, this,
            &WidgetControllBoard::on_notifyShpeWidgetHide);
    content->setLsWidget(lsWidget());
    content->setEnabled(m_isWidgetEnabled);
    m_stripContent = content;
    // Deletes the content so far, after the new one has taken over the buttons that stay, and lays
    // the new one out, so that the buttons have the sizes that their copies take.
    m_buttonGroup->addWidget(content);
    createWidgetBoardList();
    m_popup->setFixedSize(m_shapeContent->width() + popupExtraWidth,
                          m_shapeContent->height() + popupExtraHeight);
}

QList<QWidget *> WidgetControllBoard::lsWidget() const
{
    return orvane::liveWidgets(m_lsWidget);
}

void WidgetControllBoard::addWidgetContent(WidgetInfo *info)
{
    if (!info)
        return;
    auto *button = new PushButtonWithImgEx(info->imagePath, info->pressedImagePath, nullptr);
    button->setFixedSize(pictureButtonSide, pictureButtonSide);
    button->setToolTip(info->toolTip);
    orvane::speakAs(button, info->toolTip);
    QList<QWidget *> list = lsWidget();
    list.append(button);
    setLsWidget(list);
    // Only now: hosts rely on the first button added being copied as a tool button.
    m_isToolButtonCopies = false;
}

void WidgetControllBoard::removeAllWidget()
{
    m_lsWidget.clear();
    delete m_stripContent;
    deleteCopies();
    m_buttonGroup->setScrollBtnIsVisble(false);
}

void WidgetControllBoard::setWidgetIsEnabled(bool b)
{
    m_isWidgetEnabled = b;
    m_buttonGroup->setFrameIsEnabled(b);
}

void WidgetControllBoard::setIsAddCabient(bool b)
{
    m_isAddCabinet = b;
}

void WidgetControllBoard::setButtonGroupExLabelText(QString text)
{
    m_buttonGroup->setLabelText(std::move(text));
}

void WidgetControllBoard::setAddButtonTooltip(QString toolTip)
{
    m_buttonGroup->setAddButtonToolTip(std::move(toolTip));
}

void WidgetControllBoard::setAddRowCabinetTooTip(QString toolTip)
{
    m_buttonGroup->setAddRowCabincateBtnToolTip(std::move(toolTip));
}

void WidgetControllBoard::setButtonGroupExAddCabnicate(bool b)
{
    m_buttonGroup->setAddBtnVisible(b);
}

void WidgetControllBoard::setButtonGroupExAddRowCabnicate(bool b)
{
    m_buttonGroup->setAddRowCabincateBtnVisible(b);
}

void WidgetControllBoard::setDropButtonVisible(bool v)
{
    m_popup->setVisible(v);
    m_popup->setDropButoonVisible(v);
    m_popup->setShapeWidgetVisible(v);
}

QSize WidgetControllBoard::sizeHint() const
{
    return m_buttonGroup->size();
}

QSize WidgetControllBoard::minimumSizeHint() const
{
    return sizeHint();
}

bool WidgetControllBoard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_popup->dropDownBtn()) {
        if (event->type() == QEvent::Leave)
            startLeaving();
        else if (event->type() == QEvent::Enter)
            m_hasLeft = false;
    } else if (watched == this) {
        if (event->type() == QEvent::Enter) {
            if (m_buttonGroup->isWidthBigThanScrollWidth())
                CalculatePos();
        } else if (event->type() == QEvent::Leave) {
            startLeaving();
        } else if (event->type() == QEvent::FocusOut) {
            qDebug("out");
            setDropButtonVisible(false);
        }
    }
    return false;
}

void WidgetControllBoard::on_notifyShpeWidgetHide()
{
    if (m_stripContent && m_buttonGroup->getScrollAreaWidth() <= m_stripContent->width() - 1)
        setDropButtonVisible(false);
}

void WidgetControllBoard::on_clickDropDownBtn(bool shapeWidgetVisible)
{
    m_popup->show();
    m_popup->setShapeWidgetVisible(shapeWidgetVisible);
}

void WidgetControllBoard::on_addCabietsClicked()
{
    Q_EMIT signal_addCabietsClicked();
}

void WidgetControllBoard::on_itemClicked(int index)
{
    const QPointer<WidgetControllBoard> self(this);
    Q_EMIT signal_itemClicked(index);
    if (self)
        startLeaving();
}

void WidgetControllBoard::slot_timeout()
{
    if (!m_hasLeft)
        return;
    m_timer->stop();
    if (!m_popup->shapeWidgetVisible())
        hidePopup();
}

void WidgetControllBoard::slot_addRowCabietsClicked()
{
    Q_EMIT signal_addRowCabietsClicked();
}

void WidgetControllBoard::createButtonGroup()
{
    m_buttonGroup = new ButtonGroupEx(this);
    m_buttonGroup->setFixedSize(stripWidth, stripHeight);
    m_buttonGroup->setMouseTracking(true);
    connect(m_buttonGroup, &ButtonGroupEx::notifyShpeWidgetHide, this,
            &WidgetControllBoard::on_notifyShpeWidgetHide);
    connect(m_buttonGroup, &ButtonGroupEx::signal_addCabinetsClicked, this,
            &WidgetControllBoard::on_addCabietsClicked);
    connect(m_buttonGroup, &ButtonGroupEx::signal_addRowCabinetsClicked, this,
            &WidgetControllBoard::slot_addRowCabietsClicked);
}

void WidgetControllBoard::createShapeContent()
{
    m_shapeContent = new ShapeWidgetContent(this);
    m_shapeContent->setColumn(copyColumns);
    // The copies stand in the order of the strip, which is from left to right in any language.
    m_shapeContent->setLayoutDirection(Qt::LeftToRight);
    // Until it is in the popup it would lie on the strip.
    m_shapeContent->hide();
    connect(m_shapeContent, &ShapeWidgetContent::sigClickedIndex, this,
            &WidgetControllBoard::on_itemClicked);
}

void WidgetControllBoard::createPopup()
{
    m_popup = std::make_unique<WidgetBoard>(nullptr);
    m_popup->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_popup->hide();
    connect(m_popup.get(), &WidgetBoard::sigClickedDropDownBtn, this,
            &WidgetControllBoard::on_clickDropDownBtn);
}

void WidgetControllBoard::createTimer()
{
    m_timer = std::make_unique<QTimer>();
    m_timer->setInterval(leaveDelay);
    connect(m_timer.get(), &QTimer::timeout, this, &WidgetControllBoard::slot_timeout);
}

void WidgetControllBoard::createWidgetBoardList()
{
    deleteCopies();
    const QList<QWidget *> sources = lsWidget();
    for (QWidget *source : sources)
        m_boardList.append(createCopy(source));
    m_isToolButtonCopies = true;
    m_shapeContent->setLsWidget(orvane::liveWidgets(m_boardList));
    m_popup->addWidget(m_shapeContent);
}

/// A copy of \a source for the popup, which is to own it.
QWidget *WidgetControllBoard::createCopy(QWidget *source)
{
    QWidget *copy = nullptr;
    if (!m_isToolButtonCopies) {
        const auto *picture = qobject_cast<PushButtonWithImgEx *>(source);
        auto *button =
            new PushButtonWithImgEx(picture ? picture->firstImagePath() : QString(),
                                    picture ? picture->secondImagePath() : QString(), nullptr);
        if (const auto *sourceButton = qobject_cast<QAbstractButton *>(source))
            button->setText(sourceButton->text());
        copy = button;
    } else if (m_isAddCabinet) {
        auto *button = new ToolButtonEx(this, CabinetModelType, QString(), QString());
        if (const auto *model = qobject_cast<ToolButtonEx *>(source))
            button->setCabinetSize(model->cabinetWidth(), model->cabinetHeight());
        copy = button;
    } else {
        copy = new ToolButtonEx(nullptr, DefaultType, QString(), QString());
    }
    if (m_isToolButtonCopies)
        orvane::applyStyleSheet(copy, source->styleSheet());
    copy->setFixedSize(source->size());
    // After the cabinet size, which sets a tool tip too.
    copy->setToolTip(source->toolTip());
    copy->setAccessibleName(spokenText(source));
    return copy;
}

void WidgetControllBoard::deleteCopies()
{
    qDeleteAll(orvane::liveWidgets(m_boardList));
    m_boardList.clear();
}

/// Opens the popup below the strip, as far as both are on the screen.
void WidgetControllBoard::CalculatePos()
{
    const int width = m_buttonGroup->width();
    const QPoint group = m_buttonGroup->mapToGlobal(QPoint(0, 0));
    const int right = group.x() + width;
    const int dropDownWidth = m_popup->dropDownBtnWidth();
    const int screenWidth = QGuiApplication::primaryScreen()->geometry().width();
    int dropDownX = 0;
    int popupX = 0;
    if (right < width) {
        if (dropDownWidth > right) {
            hidePopup();
            return;
        }
        dropDownX = (right - dropDownWidth) / 2;
    } else if (right <= screenWidth) {
        dropDownX = group.x() + (width - dropDownWidth) / 2;
        popupX = group.x() + (width - m_popup->width()) / 2;
    } else {
        const int room = screenWidth - group.x();
        if (dropDownWidth > room) {
            hidePopup();
            return;
        }
        dropDownX = group.x() + (room - dropDownWidth) / 2;
        popupX = screenWidth - m_popup->width();
    }
    if (!m_isWidgetEnabled) {
        hidePopup();
        return;
    }
    m_popup->show();
    m_popup->setDropButoonVisible(true);
    m_popup->setDropDownBtnPos(QPoint(dropDownX - popupX, 0));
    m_popup->setTriggleBtnPos(
        QPoint((dropDownWidth - m_popup->triggleBtnWidth()) / 2 + dropDownX - popupX, 0));
    m_popup->move(popupX, group.y() + m_buttonGroup->height());
}

void WidgetControllBoard::hidePopup()
{
    m_popup->hide();
    m_popup->setDropButoonVisible(false);
}

/// The popup goes when the timer runs out, unless the pointer comes to the drop-down button.
void WidgetControllBoard::startLeaving()
{
    m_hasLeft = true;
    m_timer->start();
}
