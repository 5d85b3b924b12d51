#include "draweritem.h"

#include "definecommondata.h"
#include "internal/imagebutton.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"
#include "labelex.h"
#include "offlineportitemframe.h"
#include "rowlineitem.h"
#include "scrollbarex.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpacerItem>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace
{

constexpr int headerHeight = 42;
constexpr int portNameWidth = 160;
constexpr int portNameWidthAlone = 180;

orvane::SheetText shrinkSheet(bool isOpen)
{
    // The picture's name has a capital.
    return orvane::imageButtonSheet(isOpen ? u"drawer/btn_open" : u"drawer/btn_close", u"Pressed");
}

QString dotSheet(bool isOnline)
{
    return isOnline ? QStringLiteral("background:rgb(47,195,123);border-radius:2px;")
                    : QStringLiteral("background:rgb(153,153,153);border-radius:2px;");
}

/// The check-all box's sheet: the one of a box that stands for all or none, or for a part.
QString checkSheet(bool isPart)
{
    // The blanks before the braces differ; hosts rely on the texts.
    return isPart ? QStringLiteral(
               "QCheckBox::indicator:unchecked{border-image: "
               "url(:/Resource/Images/globalResource/drawer/checkbox_normal.png);}"
               "QCheckBox::indicator:checked {border-image: "
               "url(:/Resource/Images/globalResource/drawer/CheckBox_partCheck.png);}"
               "QCheckBox::indicator:unchecked:hover{border-image: "
               "url(:/Resource/Images/globalResource/drawer/checkbox_unchecked_hover.png);}"
               "QCheckBox::indicator:checked:hover {border-image: "
               "url(:/Resource/Images/globalResource/drawer/CheckBox_partCheck_hover.png);}")
                  : QStringLiteral(
                      "QCheckBox::indicator:unchecked{border-image: "
                      "url(:/Resource/Images/globalResource/drawer/checkbox_normal.png);}"
                      "QCheckBox::indicator:checked {border-image: "
                      "url(:/Resource/Images/globalResource/drawer/checkbox_pressed.png);}"
                      "QCheckBox::indicator:unchecked:hover{border-image: "
                      "url(:/Resource/Images/globalResource/drawer/checkbox_unchecked_hover.png);}"
                      "QCheckBox::indicator:checked:hover{border-image: "
                      "url(:/Resource/Images/globalResource/drawer/checkbox_checked_hover.png);}");
}

/// The sheet of the scroll area's bar while the pointer is over the item, and while it is not. It
/// is put together on a bar that nobody sees: each step would restyle the one in use.
QString scrollBarSheet(bool isHovered)
{
    QScrollBar bar;
    ScrollBarEx style(&bar, true);
    style.setIsLoadImg(isHovered);
    style.setScrollWidth(12);
    style.setScrollBarWidth(6);
    style.setBorderRadius(3);
    style.setScrollColor(QColor(69, 69, 69));
    style.setScrollHandleColor(isHovered ? QColor(56, 56, 56) : QColor(69, 69, 69));
    style.setVerticalStyle();
    return bar.styleSheet();
}

void removeMargins(QLayout *layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
}

} // namespace

DrawerItem::DrawerItem(QWidget *parent)
    : QWidget(parent)
{
    // Signal spies and queued connections look the types up by name.
    qRegisterMetaType<RowLineItem *>();
    qRegisterMetaType<OfflinePortItemFrame *>();
    init();
}

DrawerItem::~DrawerItem()
{
    // Children go with the item in any case; parts that have been moved elsewhere go, too.
    if (m_scrollArea && m_scrollArea->widget())
        m_scrollArea->widget()->deleteLater();
    const std::initializer_list<QWidget *> parts = {
        m_shrinkButton,    m_rightButton,         m_onlineDot,       m_checkAllBox,
        m_headerFrame,     m_scrollArea,          m_rightFrame,      m_nameFrame,
        m_deviceNameLabel, m_devicePortNameLabel, m_deviceCountLabel};
    for (QWidget *part : parts) {
        if (part)
            part->deleteLater();
    }
}

void DrawerItem::init()
{
    createDrawerItem();
    setWorkSpaceisShow(false);
}

void DrawerItem::createDrawerItem()
{
    m_headerFrame = new QFrame(this);
    m_headerFrame->setFixedHeight(headerHeight);
    m_headerFrame->installEventFilter(this);
    auto *headerGrid = new QGridLayout(m_headerFrame);
    headerGrid->setSpacing(0);
    removeMargins(headerGrid);
    auto *headerLine = new QHBoxLayout;
    headerLine->setSpacing(6);
    headerGrid->addLayout(headerLine, 0, 0);

    m_shrinkButton = new QToolButton(m_headerFrame);
    orvane::speakAs(m_shrinkButton, tr("Expand"));
    connect(m_shrinkButton, &QToolButton::clicked, this, &DrawerItem::on_toolButton_shrink_clicked);
    m_shrinkButton->setFixedSize(10, 10);
    orvane::applyStyleSheet(m_shrinkButton, shrinkSheet(true));
    headerLine->addWidget(m_shrinkButton);

    m_checkAllBox = new QCheckBox(m_headerFrame);
    orvane::speakAs(m_checkAllBox, tr("Select all"));
    connect(m_checkAllBox, &QCheckBox::clicked, this, &DrawerItem::slot_checkAllClicked);
    orvane::applyStyleSheet(m_checkAllBox, checkSheet(false));
    m_checkAllBox->setFixedSize(20, 20);
    m_checkAllBox->hide();
    headerLine->addWidget(m_checkAllBox);
    headerLine->addSpacing(6);

    m_rightFrame = new QFrame(m_headerFrame);
    m_rightFrame->setObjectName(QStringLiteral("FrameRight"));
    auto *rightGrid = new QGridLayout(m_rightFrame);
    rightGrid->setSpacing(0);
    rightGrid->setContentsMargins(5, 0, 0, 0);
    auto *rightLine = new QHBoxLayout;
    rightLine->setSpacing(6);
    rightGrid->addLayout(rightLine, 0, 0);

    m_onlineDot = new QToolButton(m_rightFrame);
    m_onlineDot->setFixedSize(8, 8);
    m_onlineDot->setFocusPolicy(Qt::NoFocus); // it only shows
    orvane::speakAs(m_onlineDot, tr("Offline"));
    orvane::applyStyleSheet(m_onlineDot, dotSheet(false));
    rightLine->addWidget(m_onlineDot);
    rightLine->addWidget(createNames());
    rightLine->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));

    m_rightButton = new QToolButton(m_rightFrame);
    m_rightButton->setFixedSize(43, 42);
    orvane::speakAs(m_rightButton, tr("Settings"));
    connect(m_rightButton, &QToolButton::clicked, this, &DrawerItem::on_toolButton_RightClicked);
    setSettingsStyle(true);
    rightLine->addWidget(m_rightButton);

    m_deviceCountLabel = new LabelEx(m_rightFrame);
    m_deviceCountLabel->hide();
    m_deviceCountLabel->setFixedSize(55, 20);
    m_deviceCountLabel->setAlignment(Qt::AlignRight);
    orvane::applyStyleSheet(m_deviceCountLabel, QStringLiteral("color:rgb(210,210,210);"));
    rightLine->addWidget(m_deviceCountLabel);
    headerLine->addWidget(m_rightFrame);

    auto *headerRow = new QHBoxLayout;
    headerRow->setSpacing(20);
    headerRow->addWidget(m_headerFrame);

    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setFrameStyle(0);
    orvane::applyStyleSheet(m_scrollArea, QStringLiteral("background:rgb(69,69,69);"));

    m_mainColumn = new QVBoxLayout;
    m_mainColumn->addLayout(headerRow);
    m_mainColumn->addWidget(m_scrollArea);
    auto *mainGrid = new QGridLayout(this);
    mainGrid->setSpacing(0);
    removeMargins(mainGrid);
    mainGrid->addLayout(m_mainColumn, 0, 0);
}

QWidget *DrawerItem::createNames()
{
    m_nameFrame = new QFrame(m_rightFrame);
    auto *grid = new QGridLayout(m_nameFrame);
    grid->setSpacing(0);
    removeMargins(grid);
    auto *column = new QVBoxLayout;
    grid->addLayout(column, 0, 0);

    orvane::SheetText sheet;
    sheet << u"color:rgb(210,210,210);font:" << DefineCommonData::getNormalFont() << u";";
    m_deviceNameLabel = new QLabel(m_nameFrame);
    orvane::applyStyleSheet(m_deviceNameLabel, sheet);
    column->addWidget(m_deviceNameLabel);
    m_devicePortNameLabel = new LabelEx(m_nameFrame);
    orvane::applyStyleSheet(m_devicePortNameLabel, sheet);
    m_devicePortNameLabel->setFixedWidth(portNameWidth);
    column->addWidget(m_devicePortNameLabel);
    return m_nameFrame;
}

void DrawerItem::addItem(QWidget *w)
{
    // A body that is set again has to stay where it is, in the scroll area's viewport.
    if (!m_scrollArea || !w || w == m_scrollArea->widget())
        return;
    m_scrollArea->setWidget(w);
    // The body may come when there are further items already.
    orvane::tabInOrder(QList<QWidget *>{m_scrollArea} + orvane::tabStops(w));
}

QWidget *DrawerItem::getItem()
{
    return m_scrollArea ? m_scrollArea->widget() : nullptr;
}

void DrawerItem::removeItem()
{
    delete getItem();
}

void DrawerItem::setScrollAreaHeight(int height)
{
    if (m_scrollArea)
        m_scrollArea->setFixedHeight(height);
}

void DrawerItem::addContentWidget(QWidget *w)
{
    m_contentWidget = w;
    if (!w)
        return;
    m_mainColumn->addWidget(w);
    w->hide();
}

QWidget *DrawerItem::widgetContent()
{
    return m_contentWidget;
}

void DrawerItem::setWorkSpaceisShow(bool show)
{
    // An area without a body stays hidden; hosts rely on the flag and the picture all the same.
    if (m_isScrollAreaVisible) {
        if (m_scrollArea && (!show || m_scrollArea->widget()))
            m_scrollArea->setVisible(show);
    } else if (m_contentWidget) {
        m_contentWidget->setVisible(show);
    }
    orvane::applyStyleSheet(m_shrinkButton, shrinkSheet(show));
    orvane::speakAs(m_shrinkButton, show ? tr("Collapse") : tr("Expand"),
                    show ? tr("Expand") : tr("Collapse"));
    m_isWorkSpaceShown = show;
}

bool DrawerItem::getWorkSpaceIsShow()
{
    return m_isWorkSpaceShown;
}

void DrawerItem::setDrawItemPressed(bool pressed)
{
    orvane::applyStyleSheet(
        m_rightFrame,
        pressed ? QStringLiteral("#FrameRight{background:rgb(66,145,240);border-radius:5px;}")
                : QStringLiteral("#FrameRight{background:rgb(99,99,99);border-radius:5px;}"
                                 "#FrameRight:hover{background:rgb(87,90,92);}"));
    if (m_isOnline)
        setSettingsStyle(pressed);
    m_isItemPressed = pressed;
}

bool DrawerItem::getItemPressed()
{
    return m_isItemPressed;
}

void DrawerItem::setWidgetVisible(bool visible)
{
    m_rightButton->setVisible(visible);
    m_onlineDot->setVisible(visible);
    m_devicePortNameLabel->setFixedWidth(visible ? portNameWidth : portNameWidthAlone);
}

void DrawerItem::setDeviceName(QString name)
{
    m_deviceNameLabel->setText(name);
}

QString DrawerItem::getDeviceName()
{
    return m_deviceNameLabel->text();
}

void DrawerItem::setDevicePortName(QString name, bool remember)
{
    m_devicePortNameLabel->setText(name);
    if (remember)
        m_devicePortName = std::move(name);
}

QString DrawerItem::getDevicePortName()
{
    return m_devicePortName;
}

void DrawerItem::setDeviceCount(QString count)
{
    m_deviceCountLabel->setText(count);
}

QString DrawerItem::deviceCount()
{
    return m_deviceCountLabel->text();
}

void DrawerItem::setDeviceCountVisible(bool visible)
{
    m_deviceCountLabel->setVisible(visible);
}

void DrawerItem::setCheckAllVisible(bool visible)
{
    m_checkAllBox->setVisible(visible);
}

void DrawerItem::setCheckAllIsCheck(bool isCheck)
{
    const QPointer<DrawerItem> self(this);
    m_checkAllBox->setChecked(isCheck);
    if (self)
        Q_EMIT signal_checkAllItemContent(this, isCheck);
}

void DrawerItem::setCheckAllStyle(checkStateEx state)
{
    const QPointer<DrawerItem> self(this);
    switch (state) {
    case AllChecked:
    case NoneChecked:
    case PartChecked:
        m_checkAllBox->setChecked(state != NoneChecked);
        if (self)
            orvane::applyStyleSheet(m_checkAllBox, checkSheet(state == PartChecked));
        break;
    }
}

void DrawerItem::setBOnline(bool online)
{
    m_isOnline = online;
    m_rightButton->setEnabled(online);
    orvane::applyStyleSheet(m_onlineDot, dotSheet(online));
    orvane::speakAs(m_onlineDot, online ? tr("Online") : tr("Offline"),
                    online ? tr("Offline") : tr("Online"));
    if (online)
        setSettingsStyle(m_isItemPressed);
    else
        setDeleteStyle();
}

bool DrawerItem::getBOnline()
{
    return m_isOnline;
}

void DrawerItem::setIsInEditMode(bool isInEditMode)
{
    m_isInEditMode = isInEditMode;
}

bool DrawerItem::getIsInEditMode()
{
    return m_isInEditMode;
}

void DrawerItem::setIsVisibleScrollBar(bool visible)
{
    m_isScrollBarVisible = visible;
    if (m_scrollArea)
        m_scrollArea->setVerticalScrollBarPolicy(visible ? Qt::ScrollBarAsNeeded
                                                         : Qt::ScrollBarAlwaysOff);
}

void DrawerItem::setBVisibleScrolArea(bool visible)
{
    m_isScrollAreaVisible = visible;
    if (m_scrollArea)
        m_scrollArea->setVisible(visible);
}

bool DrawerItem::getBVisibleScrolArea()
{
    return m_isScrollAreaVisible;
}

void DrawerItem::setScrollArea(QScrollArea *area)
{
    m_scrollArea = area;
}

QScrollArea *DrawerItem::scrollArea()
{
    return m_scrollArea;
}

void DrawerItem::setSenderIndex(int index)
{
    m_senderIndex = index;
}

int DrawerItem::getSenderIndex()
{
    return m_senderIndex;
}

void DrawerItem::setMoudelID(int id)
{
    m_moudelId = id;
}

int DrawerItem::getMoudelID()
{
    return m_moudelId;
}

void DrawerItem::mousePressEvent(QMouseEvent *event)
{
    // A press ends here, accepted: it is no press on what lies behind the item.
    Q_UNUSED(event)
}

void DrawerItem::mouseReleaseEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
}

bool DrawerItem::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_headerFrame)
        return false;

    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_isHeaderPressed = true;
        break;
    case QEvent::MouseButtonRelease: {
        // A release of another button leaves the header pressed: hosts rely on it.
        if (!m_isHeaderPressed || static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
            break;
        const QPointer<DrawerItem> self(this);
        const QPointer<QObject> header(watched);
        notifyHeaderClicked();
        if (self)
            m_isHeaderPressed = false;
        if (!header) {
            // Nobody is left whom Qt could hand the event to.
            event->accept();
            return true;
        }
        break;
    }
    case QEvent::Enter:
        if (!m_isOnline) {
            setDeleteStyle();
            m_rightButton->setEnabled(true);
        }
        break;
    case QEvent::Leave:
        if (!m_isOnline)
            setDeleteStyle();
        m_rightButton->setEnabled(m_isOnline);
        break;
    default:
        break;
    }
    return false;
}

void DrawerItem::enterEvent(QEvent *event)
{
    Q_UNUSED(event)
    setScrollBarStyle(true);
}

void DrawerItem::leaveEvent(QEvent *event)
{
    Q_UNUSED(event)
    setScrollBarStyle(false);
}

void DrawerItem::on_toolButton_shrink_clicked()
{
    notifyHeaderClicked();
}

void DrawerItem::on_toolButton_RightClicked()
{
    if (m_isInEditMode)
        return;
    if (m_isOnline)
        Q_EMIT signal_notifySettings(this);
    else
        Q_EMIT signal_deleteItem(this);
}

void DrawerItem::on_itemContentPortItemPressed(RowLineItem *rowItem)
{
    Q_EMIT signal_ItemContentPortItemPressed(this, rowItem);
}

void DrawerItem::slot_itemStateChandged(int index)
{
    Q_EMIT signal_drawItemContentStateChandged(this, index);
}

void DrawerItem::slot_checkAllClicked()
{
    const QPointer<DrawerItem> self(this);
    Q_EMIT signal_currentCheckBoxCheck(this);
    if (!self)
        return;
    setCheckAllIsCheck(m_checkAllBox->checkState() == Qt::Checked);
    if (!self)
        return;
    setDrawItemPressed(true);
    setWorkSpaceisShow(true);
    Q_EMIT signal_checkAllHasClicked(this);
}

void DrawerItem::slot_itemContentPortItemPressed(OfflinePortItemFrame *item)
{
    Q_EMIT signal_offlineItemContentPortItemPressed(this, item);
}

void DrawerItem::notifyHeaderClicked()
{
    if (m_isInEditMode)
        return;
    const QPointer<DrawerItem> self(this);
    Q_EMIT notifyIsShrink(this);
    if (self)
        Q_EMIT signals_selectedCurrentItem(this);
}

void DrawerItem::setSettingsStyle(bool isSelected)
{
    orvane::speakAs(m_rightButton, tr("Settings"), tr("Delete"));
    constexpr char16_t rest[] =
        u"border-top-right-radius:5px;border-bottom-right-radius:5px;border-image:url("
        u":/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}";
    orvane::SheetText sheet;
    sheet << u"QToolButton{background:"
          << QStringView(isSelected ? u"rgb(82,145,233);" : u"rgb(99,99,99);") << rest
          << u"QToolButton:hover{background:rgb(115,167,237);" << rest
          << u"QToolButton:pressed{background:rgb(49,87,140);" << rest;
    orvane::applyStyleSheet(m_rightButton, sheet);
}

void DrawerItem::setDeleteStyle()
{
    orvane::speakAs(m_rightButton, tr("Delete"), tr("Settings"));
    orvane::applyStyleSheet(
        m_rightButton,
        QStringLiteral("QToolButton{border-image:"
                       "url(:/Resource/Images/globalResource/drawer/delete_normal.png);}"
                       "QToolButton:pressed{border-image:"
                       "url(:/Resource/Images/globalResource/drawer/delete_pressed.png);}"
                       "QToolButton:disabled{border-image:"
                       "url(:/Resource/Images/globalResource/drawer/delete_disabled.png);}"));
}

void DrawerItem::setScrollBarStyle(bool isHovered)
{
    if (!m_isScrollBarVisible || !m_scrollArea)
        return;
    static const QString hoveredSheet = scrollBarSheet(true);
    static const QString normalSheet = scrollBarSheet(false);
    QScrollBar *bar = m_scrollArea->verticalScrollBar();
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    orvane::applyStyleSheet(bar, isHovered ? hoveredSheet : normalSheet);
}
