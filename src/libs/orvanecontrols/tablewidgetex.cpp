#include "tablewidgetex.h"

#include "internal/imagebutton.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "scrollbarex.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QScrollBar>
#include <QTabBar>

namespace
{

constexpr int addButtonSize = 20;
constexpr int closeButtonRoom = 20;
constexpr int scrollThickness = 12;
constexpr int scrollHandle = 6;
constexpr int scrollRadius = 3;

QVBoxLayout *makePlainLayout(QWidget *widget)
{
    auto *layout = new QVBoxLayout(widget);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

TableWidgetEx::TableWidgetEx(QWidget *parent, TableWidgetType type, QString title)
    : QTabWidget(parent)
    , m_titleText(title)
{
    initStyle();
    setIsLoadCornerWidget(type == EditableTable);
    setElideMode(Qt::ElideRight);
}

void TableWidgetEx::initStyle()
{
    m_tabWorkSpaceColor = QColor(69, 69, 69);
    m_fontColor = QColor(210, 210, 210);
    m_fontHoverColor = QColor(210, 210, 210);
    m_fontPressedColor = QColor(210, 210, 210);
    m_tabNomalColor = QColor(52, 52, 52);
    m_tabHoverColor = QColor(80, 80, 80);
    m_tabSelectedColor = QColor(69, 69, 69);
    m_tabPanelWidth = 100;
    m_tabPanelHeight = 30;
    m_leftMargin = 0;
    m_topMargin = 0;
    setTableWidgetStyle();
}

void TableWidgetEx::setTableWidgetStyle()
{
    orvane::SheetText sheet;
    sheet << u"QTabWidget::pane{border:none;background-color:" << m_tabWorkSpaceColor
          << u";}"
             u"QTabWidget::tab-bar{left:0px;}"
             u"QTabBar::tab{background-color:"
          << m_tabNomalColor << u";color:" << m_fontColor << u";font: SimSun Arial;width:"
          << m_tabPanelWidth << u"px;height:"
          << m_tabPanelHeight
          // The margins carry no unit and two semicolons follow; hosts rely on the text.
          << u"px;margin-left: " << m_leftMargin << u";margin-top: " << m_topMargin
          << u";;border-right:1px solid rgb(69,69,69);}"
             u"QTabBar::tab:hover{background-color:"
          // Hosts rely on a hovered tab keeping the font colour of the others.
          << m_tabHoverColor << u";color:" << m_fontColor
          << u";}"
             u"QTabBar::tab:selected{background-color:"
          << m_tabSelectedColor << u";color:" << m_fontPressedColor
          << u";}"
             u"QTabBar::tab:!enabled{width:0px; height:0px;}"
             u"QTabBar::close-button {image: "
             u"url(:/Resource/Images/globalResource/tabwidget/tab_closed_normal.png);} "
             u"QTabBar::close-button:hover {image: "
             u"url(:/Resource/Images/globalResource/tabwidget/tab_closed_hover.png);}"
             u"QTabBar::close-button:pressed {image: "
             u"url(:/Resource/Images/globalResource/tabwidget/tab_closed_pressed.png);}"
             u"QTabBar QToolButton{border:none;}"
             u"QTabBar QToolButton::right-arrow {background-color: rgba(0,0,0,1);border-image: "
             u"url(:/Resource/Images/globalResource/tabwidget/tab_right_normal.png);}"
             u"QTabBar QToolButton::left-arrow {background-color: rgba(0,0,0,1);border-image: "
             u"url(:/Resource/Images/globalResource/tabwidget/tab_left_normal.png);}"
             u"QTabBar::tear{background:transparent;}";
    orvane::applyStyleSheet(this, sheet);
}

void TableWidgetEx::setIsLoadCornerWidget(bool isLoad)
{
    if (!isLoad)
        return;
    connect(this, &QTabWidget::tabCloseRequested, this, &TableWidgetEx::on_removeTable,
            Qt::UniqueConnection);
    setUsesScrollButtons(true);
    m_isClosable = true;
    setTabsClosable(true);

    if (!m_addButton) {
        m_addButton = new orvane::ImageButton;
        m_addButton->setFixedSize(addButtonSize, addButtonSize);
        orvane::speakAs(m_addButton, tr("Add tab"));
        connect(m_addButton, &QToolButton::clicked, this, &TableWidgetEx::on_addTable);
        orvane::applyStyleSheet(m_addButton, orvane::imageButtonSheet(u"tabwidget/add"));
    }
    setCornerWidget(m_addButton, Qt::TopRightCorner);
    m_addButton->show(); // by itself it comes only with a tab widget that is not shown yet
}

void TableWidgetEx::initCornerWidget(TableWidgetType type)
{
    setIsLoadCornerWidget(type == EditableTable);
}

void TableWidgetEx::setIsShowAddButton(bool isShow)
{
    if (m_addButton)
        m_addButton->setVisible(isShow);
}

void TableWidgetEx::setTabsClosable(bool closable)
{
    QTabWidget::setTabsClosable(closable);
    orvane::nameCloseButtons(tabBar(), tr("Close tab"));
}

void TableWidgetEx::setCornerWidget(QWidget *widget, Qt::Corner corner)
{
    QTabWidget::setCornerWidget(widget, corner);
}

void TableWidgetEx::removeTab(int index)
{
    QTabWidget::removeTab(index);
}

void TableWidgetEx::addTable(bool first)
{
    addTab(new QWidget, m_titleText + " " + QString::number(first ? 1 : m_index + 1));
    setCurrentIndex(count() - 1);
    ++m_index;
}

int TableWidgetEx::addTab(QWidget *page, const QString &text)
{
    if (!m_isScrollBarNeeded || !page)
        return QTabWidget::addTab(page, text);
    auto *holder = new QWidget;
    wrapPage(page, holder);
    setScrollStyle();
    return QTabWidget::addTab(holder, text);
}

void TableWidgetEx::wrapPage(QWidget *page, QWidget *holder)
{
    m_mainLayout =
        page->layout() ? qobject_cast<QVBoxLayout *>(page->layout()) : makePlainLayout(page);
    m_scrollArea = new QScrollArea(holder);
    m_scrollArea->setBackgroundRole(QPalette::Base);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidget(page);
    m_scrollArea->setWidgetResizable(true);
    orvane::applyStyleSheet(holder, QStringLiteral("background:transparent;border:0;"));
    makePlainLayout(holder)->addWidget(m_scrollArea);
}

int TableWidgetEx::customAddTab(const QString &text)
{
    return addTab(new QWidget, text);
}

void TableWidgetEx::setTabText(int index, const QString &text)
{
    int needed = QFontMetrics(font()).horizontalAdvance(text);
    int room = m_tabPanelHeight;
    if (tabPosition() != QTabWidget::West) {
        needed += m_isClosable ? closeButtonRoom : 0;
        room = m_tabPanelWidth;
    }
    setTabToolTip(index, needed > room ? text : QString());
    QTabWidget::setTabText(index, text);
}

void TableWidgetEx::setScrollStyle()
{
    if (!m_scrollArea)
        return;
    // The setters apply styles of their own, of either direction and the horizontal one last.
    ScrollBarEx vertical(m_scrollArea->verticalScrollBar(), true);
    vertical.setScrollWidth(scrollThickness);
    vertical.setScrollBarWidth(scrollHandle);
    vertical.setBorderRadius(scrollRadius);
    vertical.setScrollColor(QColor(69, 69, 69));
    vertical.setVerticalStyle();

    ScrollBarEx horizontal(m_scrollArea->horizontalScrollBar(), true);
    horizontal.setScrollHeight(scrollThickness);
    horizontal.setScrollBarHeight(scrollHandle);
    horizontal.setBorderRadius(scrollRadius);
    horizontal.setScrollColor(QColor(69, 69, 69));
}

void TableWidgetEx::on_addTable()
{
    if (count() > 0)
        Q_EMIT notifyAddTable(m_index);
}

void TableWidgetEx::on_removeTable(int index)
{
    Q_EMIT signals_removeTable(index);
}

void TableWidgetEx::on_rangeChanged(int /*min*/, int max)
{
    if (m_scrollArea)
        m_scrollArea->verticalScrollBar()->setValue(max);
}

void TableWidgetEx::paintEvent(QPaintEvent *event)
{
    QTabWidget::paintEvent(event);
    if (!m_isMovedCornerButton || !m_addButton)
        return;
    const QRect bar = tabBar()->geometry();
    int x = isRightToLeft() ? bar.x() - m_addButton->width() : bar.x() + bar.width();
    if (x < 0 || x + m_addButton->width() > width())
        x = m_addButton->x();
    m_addButton->move(x, qMax(0, bar.y() + (bar.height() - m_addButton->height()) / 2));
}

void TableWidgetEx::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    orvane::nameCloseButtons(tabBar(), tr("Close tab"));
}

int TableWidgetEx::index() const
{
    return m_index;
}

void TableWidgetEx::setIndex(int index)
{
    m_index = index;
}

QString TableWidgetEx::titleText() const
{
    return m_titleText;
}

void TableWidgetEx::setTitleText(const QString &text)
{
    m_titleText = text;
}

bool TableWidgetEx::bMovedCornerButton() const
{
    return m_isMovedCornerButton;
}

void TableWidgetEx::setBMovedCornerButton(bool isMoved)
{
    m_isMovedCornerButton = isMoved;
    // The next layout puts the button into the corner; painting takes it from there.
    QEvent layOut(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layOut);
    update();
}

bool TableWidgetEx::bNeedScrollBar() const
{
    return m_isScrollBarNeeded;
}

void TableWidgetEx::setBNeedScrollBar(bool isNeeded)
{
    m_isScrollBarNeeded = isNeeded;
}

QVBoxLayout *TableWidgetEx::mainLayout() const
{
    return m_mainLayout;
}

void TableWidgetEx::setMainLayout(QVBoxLayout *layout)
{
    m_mainLayout = layout;
}

QColor TableWidgetEx::tabWorkSpaceColor() const
{
    return m_tabWorkSpaceColor;
}

void TableWidgetEx::setTabWorkSpaceColor(const QColor &color)
{
    m_tabWorkSpaceColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::fontColor() const
{
    return m_fontColor;
}

void TableWidgetEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::fontHoverColor() const
{
    return m_fontHoverColor;
}

void TableWidgetEx::setFontHoverColor(const QColor &color)
{
    m_fontHoverColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::fontPressedColor() const
{
    return m_fontPressedColor;
}

void TableWidgetEx::setFontPressedColor(const QColor &color)
{
    m_fontPressedColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::tabNomalColor() const
{
    return m_tabNomalColor;
}

void TableWidgetEx::setTabNomalColor(const QColor &color)
{
    m_tabNomalColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::tabHoverColor() const
{
    return m_tabHoverColor;
}

void TableWidgetEx::setTabHoverColor(const QColor &color)
{
    m_tabHoverColor = color;
    setTableWidgetStyle();
}

QColor TableWidgetEx::tabSelectedColor() const
{
    return m_tabSelectedColor;
}

void TableWidgetEx::setTabSelectedColor(const QColor &color)
{
    m_tabSelectedColor = color;
    setTableWidgetStyle();
}

int TableWidgetEx::tabPanelWidth() const
{
    return m_tabPanelWidth;
}

void TableWidgetEx::setTabPanelWidth(int width)
{
    m_tabPanelWidth = width;
    setTableWidgetStyle();
}

int TableWidgetEx::tabPanelHeight() const
{
    return m_tabPanelHeight;
}

void TableWidgetEx::setTabPanelHeight(int height)
{
    m_tabPanelHeight = height;
    setTableWidgetStyle();
}

int TableWidgetEx::leftMargin() const
{
    return m_leftMargin;
}

void TableWidgetEx::setLeftMargin(int margin)
{
    m_leftMargin = margin;
    setTableWidgetStyle();
}

int TableWidgetEx::topMargin() const
{
    return m_topMargin;
}

void TableWidgetEx::setTopMargin(int margin)
{
    m_topMargin = margin;
    setTableWidgetStyle();
}

QString TableWidgetEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
