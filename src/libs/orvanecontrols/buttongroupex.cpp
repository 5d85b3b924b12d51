#include "buttongroupex.h"

#include "internal/mirroring.h"
#include "internal/spokenname.h"
#include "internal/stepscroll.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"
#include "toolbuttonex.h"
#include "ui_buttongroupex.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>

namespace
{

constexpr int scrollStep = 54;

/// A button that fills \a frame.
ToolButtonEx *createButton(QWidget *frame, ButtonType type)
{
    auto *button = new ToolButtonEx(frame, type, QString(), QString());
    orvane::fillParent(button);
    return button;
}

/// A plain button that fills \a frame and gets its look from the host, by \a property.
ToolButtonEx *createHostButton(QWidget *frame, const char *property)
{
    ToolButtonEx *button = createButton(frame, DefaultType);
    button->setProperty(property, true);
    return button;
}

QLabel *createPlaceholder(QWidget *frame)
{
    auto *placeholder = new QLabel(frame);
    orvane::fillParent(placeholder);
    return placeholder;
}

void setButtonVisible(QWidget *button, bool visible)
{
    QWidget *frame = button->parentWidget();
    frame->setVisible(visible);
    button->setVisible(visible);
    if (visible)
        orvane::fillParent(button);
}

} // namespace

ButtonGroupEx::ButtonGroupEx(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::ButtonGroupEx>())
{
    initStyle(); // before there are children to restyle
    m_ui->setupUi(this);
    orvane::keepFromLeftToRight(m_ui->mainLayout);
    createScrollBtn();
    createAddCabnicateBtn();
    createAddRowCabnicateBtn();
    orvane::tabInOrder({m_leftButton, m_addButton, m_addRowButton, m_rightButton});
    const QScrollBar *bar = m_ui->scrollArea->horizontalScrollBar();
    m_position = bar->sliderPosition();
    m_step = scrollStep;
    orvane::applyStyleSheet(
        m_ui->labelTitle,
        QStringLiteral("background:rgb(85,85,85);color:rgb(211,211,211);font:SimSun Arial;"));
    connect(bar, &QScrollBar::rangeChanged, this, &ButtonGroupEx::on_getScrollerRange);
    setMouseTracking(true);
}

ButtonGroupEx::~ButtonGroupEx() = default;

void ButtonGroupEx::createScrollBtn()
{
    m_leftButton = createHostButton(m_ui->leftBtnFrame, "isCabinateWidgetLeftBtn");
    orvane::speakAs(m_leftButton, tr("Scroll left"));
    connect(m_leftButton, &ToolButtonEx::clicked, this, &ButtonGroupEx::on_leftClicked);
    m_rightButton = createHostButton(m_ui->rightBtnFrame, "isCabinateWidgetRightBtn");
    orvane::speakAs(m_rightButton, tr("Scroll right"));
    connect(m_rightButton, &ToolButtonEx::clicked, this, &ButtonGroupEx::on_rightClicked);
    m_leftPlaceholder = createPlaceholder(m_ui->leftBtnFrame);
    m_rightPlaceholder = createPlaceholder(m_ui->rightBtnFrame);
    setScrollBtnIsVisble(false);
}

void ButtonGroupEx::createAddCabnicateBtn()
{
    m_addButton = createButton(m_ui->addCabniateBtnFrame, AddCabinetType);
    orvane::speakAs(m_addButton, tr("Add cabinets"));
    connect(m_addButton, &ToolButtonEx::clicked, this, &ButtonGroupEx::on_addCabnicate);
}

void ButtonGroupEx::createAddRowCabnicateBtn()
{
    orvane::applyStyleSheet(m_ui->addRowCabniateBtnFrame, QStringLiteral("border:none;"));
    m_addRowButton = createHostButton(m_ui->addRowCabniateBtnFrame, "isAddRowCabnicateBtn");
    orvane::speakAs(m_addRowButton, tr("Add row of cabinets"));
    connect(m_addRowButton, &ToolButtonEx::clicked, this, &ButtonGroupEx::slot_addRowCabnicate);
}

void ButtonGroupEx::initStyle()
{
    orvane::applyStyleSheet(
        this,
        QStringLiteral("#ButtonGroupEx{border-radius:5px;border:1px solid rgb(112, 112, 112);"
                       "background-color:rgb(62,62,62);}"
                       "#scrollArea{background-color:rgb(62,62,62);}"));
}

void ButtonGroupEx::addWidget(QWidget *w)
{
    if (!w)
        return;
    m_contentWidget = w;
    w->setParent(m_ui->scrollArea->viewport()); // first: the content takes over the area's style
    orvane::applyStyleSheet(w,
                            QStringLiteral(".QWidget{background:rgb(62,62,62);}"
                                           ".QWidget:disabled{background:rgb(62,62,62);}"));
    m_ui->scrollArea->setWidget(w);
    orvane::tabInOrder(QList<QWidget *>{m_addRowButton} + orvane::tabStops(w) << m_rightButton);
    m_contentWidth = w->width();
    layOutScrollArea();
    setScrollBtnIsVisble(isWidthBigThanScrollWidth());
}

void ButtonGroupEx::setScrollBtnIsVisble(bool b)
{
    setLeftArrowVisible(false);
    setRightArrowVisible(b);
}

void ButtonGroupEx::setAddBtnVisible(bool b)
{
    setButtonVisible(m_addButton, b);
}

void ButtonGroupEx::setAddRowCabincateBtnVisible(bool b)
{
    setButtonVisible(m_addRowButton, b);
}

void ButtonGroupEx::setAddButtonToolTip(QString toolTip)
{
    m_addButton->setToolTip(toolTip);
}

void ButtonGroupEx::setAddRowCabincateBtnToolTip(QString toolTip)
{
    m_addRowButton->setToolTip(toolTip);
}

void ButtonGroupEx::setLabelText(QString text)
{
    orvane::applyStyleSheet(
        m_ui->labelTitle,
        QStringLiteral("QLabel{background-color:rgb(85,85,85);border:0px;color:rgb(211,211,211);"
                       "font:SimSun Arial;}"
                       "QLabel:disabled{border:0px;color:rgb(167,167,167);font:SimSun Arial;}"));
    m_ui->labelTitle->setText(text);
}

void ButtonGroupEx::setFrameIsEnabled(bool b)
{
    m_addButton->setEnabled(b);
    m_addRowButton->setEnabled(b);
    m_ui->labelTitle->setEnabled(b);
    m_leftButton->setEnabled(b);
    m_rightButton->setEnabled(b);
    if (m_contentWidget)
        m_contentWidget->setEnabled(b);
}

int ButtonGroupEx::getScrollAreaWidth()
{
    return m_ui->scrollArea->width();
}

bool ButtonGroupEx::isWidthBigThanScrollWidth()
{
    return m_contentWidget && m_contentWidth > getScrollAreaWidth();
}

void ButtonGroupEx::on_getScrollerRange(int min, int max)
{
    m_rangeMinimum = min;
    m_rangeMaximum = max;
}

void ButtonGroupEx::on_leftClicked()
{
    setRightArrowVisible(true);
    if (orvane::stepLeft(m_ui->scrollArea->horizontalScrollBar(), m_position, m_rangeMinimum,
                         m_step))
        setLeftArrowVisible(false);
    notifyIfContentIsWide();
}

void ButtonGroupEx::on_rightClicked()
{
    setLeftArrowVisible(true);
    if (orvane::stepRight(m_ui->scrollArea->horizontalScrollBar(), m_position, m_rangeMaximum,
                          m_step))
        setRightArrowVisible(false);
    notifyIfContentIsWide();
}

void ButtonGroupEx::on_addCabnicate()
{
    const QPointer<ButtonGroupEx> self(this);
    Q_EMIT signal_addCabinetsClicked();
    if (self)
        notifyIfContentIsWide();
}

void ButtonGroupEx::slot_addRowCabnicate()
{
    const QPointer<ButtonGroupEx> self(this);
    Q_EMIT signal_addRowCabinetsClicked();
    if (self)
        notifyIfContentIsWide();
}

void ButtonGroupEx::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        orvane::keepFromLeftToRight(m_ui->mainLayout);
}

void ButtonGroupEx::setLeftArrowVisible(bool visible)
{
    orvane::setArrowVisible(m_leftButton, m_leftPlaceholder, visible);
}

void ButtonGroupEx::setRightArrowVisible(bool visible)
{
    orvane::setArrowVisible(m_rightButton, m_rightPlaceholder, visible);
}

// A strip that was not shown yet has not been laid out; the scroll area gets its width here.
void ButtonGroupEx::layOutScrollArea()
{
    for (const QWidget *frame :
         {static_cast<QWidget *>(this), static_cast<QWidget *>(m_ui->middleFrame),
          static_cast<QWidget *>(m_ui->scrollAreaFrame)}) {
        frame->layout()->invalidate();
        frame->layout()->activate();
    }
}

void ButtonGroupEx::notifyIfContentIsWide()
{
    if (isWidthBigThanScrollWidth())
        Q_EMIT notifyShpeWidgetHide();
}
