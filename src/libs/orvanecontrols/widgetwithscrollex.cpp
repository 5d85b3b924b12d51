#include "widgetwithscrollex.h"

#include "internal/mirroring.h"
#include "internal/spokenname.h"
#include "internal/stepscroll.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"
#include "ui_widgetwithscrollex.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>

namespace
{

constexpr int windowWidth = 138;
constexpr int windowHeight = 69;
constexpr int defaultStep = 74;

QString ownSheet()
{
    return QStringLiteral("#WidgetWithScrollEx{border:none; background-color:RGB(69, 69, 69);}");
}

} // namespace

WidgetWithScrollEx::WidgetWithScrollEx(QWidget *parent)
    : WidgetWithScrollEx(ownSheet(), parent)
{
}

WidgetWithScrollEx::WidgetWithScrollEx(const QString &sheet, QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::WidgetWithScrollEx>())
{
    orvane::applyStyleSheet(this, sheet); // before there are children to restyle
    m_ui->setupUi(this);
    orvane::keepFromLeftToRight(m_ui->mainLayout);
    createScrollButton();
    initControls();
}

WidgetWithScrollEx::~WidgetWithScrollEx() = default;

void WidgetWithScrollEx::createScrollButton()
{
    m_leftButton = new QToolButton(m_ui->leftBtnFrame);
    orvane::fillParent(m_leftButton);
    orvane::speakAs(m_leftButton, tr("Scroll left"));
    connect(m_leftButton, &QToolButton::clicked, this, &WidgetWithScrollEx::on_leftClicked);
    orvane::applyStyleSheet(
        m_leftButton,
        QStringLiteral("QToolButton{border-image: "
                       "url(:/Resource/Images/globalResource/drawer/btn_Left_normal.png);}"
                       "QToolButton:pressed{border-image: "
                       "url(:/Resource/Images/globalResource/drawer/btn_Left_pressed.png);}"));

    m_rightButton = new QToolButton(m_ui->rightBtnFrame);
    orvane::fillParent(m_rightButton);
    orvane::speakAs(m_rightButton, tr("Scroll right"));
    connect(m_rightButton, &QToolButton::clicked, this, &WidgetWithScrollEx::on_rightClicked);
    orvane::applyStyleSheet(
        m_rightButton,
        QStringLiteral("QToolButton{border-image: "
                       "url(:/Resource/Images/globalResource/drawer/btn_Right_normal.png);}"
                       "QToolButton:pressed{border-image: "
                       "url(:/Resource/Images/globalResource/drawer/btn_Right_pressed.png);}"));

    m_leftPlaceholder = new QLabel(m_ui->leftBtnFrame);
    orvane::fillParent(m_leftPlaceholder);
    m_rightPlaceholder = new QLabel(m_ui->rightBtnFrame);
    orvane::fillParent(m_rightPlaceholder);
}

void WidgetWithScrollEx::initControls()
{
    const QScrollBar *bar = m_ui->scrollArea->horizontalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, &WidgetWithScrollEx::on_rangChanged);
    m_position = bar->sliderPosition();
    m_scrollSingleStepValue = defaultStep;
    setLeftButtonVisible(false);
    setRightButtonVisible(false);
}

void WidgetWithScrollEx::initStyle()
{
    orvane::applyStyleSheet(this, ownSheet());
}

void WidgetWithScrollEx::addWidget(QWidget *w)
{
    if (!w)
        return;
    QScrollArea *area = m_ui->scrollArea;
    area->setWidget(w);
    area->setFixedSize(windowWidth, windowHeight);
    orvane::tabInOrder(QList<QWidget *>{m_leftButton} + orvane::tabStops(w) << m_rightButton);
    if (w->width() > area->width()) {
        setLeftButtonVisible(false);
        setRightButtonVisible(true);
    }
}

void WidgetWithScrollEx::removeWidget()
{
    delete m_ui->scrollArea->takeWidget();
}

void WidgetWithScrollEx::setLeftButtonVisible(bool b)
{
    orvane::setArrowVisible(m_leftButton, m_leftPlaceholder, b);
}

void WidgetWithScrollEx::setRightButtonVisible(bool b)
{
    orvane::setArrowVisible(m_rightButton, m_rightPlaceholder, b);
}

void WidgetWithScrollEx::setScrollSingleStepValue(int value)
{
    m_scrollSingleStepValue = value;
}

int WidgetWithScrollEx::scrollSingleStepValue() const
{
    return m_scrollSingleStepValue;
}

void WidgetWithScrollEx::on_rangChanged(int min, int max)
{
    m_rangeMinimum = min;
    m_rangeMaximum = max;
}

void WidgetWithScrollEx::on_leftClicked()
{
    setRightButtonVisible(true);
    if (orvane::stepLeft(m_ui->scrollArea->horizontalScrollBar(), m_position, m_rangeMinimum,
                         m_scrollSingleStepValue))
        setLeftButtonVisible(false);
}

void WidgetWithScrollEx::on_rightClicked()
{
    setLeftButtonVisible(true);
    if (orvane::stepRight(m_ui->scrollArea->horizontalScrollBar(), m_position, m_rangeMaximum,
                          m_scrollSingleStepValue))
        setRightButtonVisible(false);
}

void WidgetWithScrollEx::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        orvane::keepFromLeftToRight(m_ui->mainLayout);
}
