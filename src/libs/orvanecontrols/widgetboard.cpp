#include "widgetboard.h"

#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "shapewidget.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

constexpr int dropDownWidth = 54;
constexpr int dropDownHeight = 20;

} // namespace

WidgetBoard::WidgetBoard(QWidget *parent)
    : QFrame(parent)
{
    createShapeWidget();
    createDropDownBtn();
    setAttribute(Qt::WA_TranslucentBackground);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(m_shapeWidget);
    layout->addStretch();
    layout->setContentsMargins(0, dropDownHeight, 0, 0);

    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

WidgetBoard::~WidgetBoard()
{
    // Qt's tool button still works with itself after its click, even when a receiver of the report
    // has deleted it with the popup; so it goes a moment later.
    if (m_isReportingClick) {
        m_dropDownButton->setParent(nullptr);
        m_dropDownButton->deleteLater();
    }
}

void WidgetBoard::addWidget(QWidget *widget)
{
    m_shapeWidget->addWidget(widget);
}

QToolButton *WidgetBoard::dropDownBtn() const
{
    return m_dropDownButton;
}

void WidgetBoard::setShapeWidgetVisible(bool visible)
{
    m_shapeWidget->setVisible(visible);
}

bool WidgetBoard::shapeWidgetVisible() const
{
    return m_shapeWidget->isVisible();
}

void WidgetBoard::setDropButoonVisible(bool visible)
{
    m_dropDownButton->setVisible(visible);
}

bool WidgetBoard::dropDownButtonVisible() const
{
    return m_dropDownButton->isVisible();
}

void WidgetBoard::setDropDownBtnPos(QPoint pos)
{
    m_dropDownButton->move(pos);
}

void WidgetBoard::setTriggleBtnPos(QPoint pos)
{
    m_shapeWidget->setTriggleBtnPos(pos);
}

void WidgetBoard::setTriggleBtnWidth(int width)
{
    m_triggleBtnWidth = width;
}

int WidgetBoard::triggleBtnWidth() const
{
    return m_triggleBtnWidth;
}

void WidgetBoard::setTriggleBtnHeight(int height)
{
    m_triggleBtnHeight = height;
}

int WidgetBoard::triggleBtnHeight() const
{
    return m_triggleBtnHeight;
}

void WidgetBoard::setDropDownBtnWidth(int width)
{
    m_dropDownBtnWidth = width;
}

int WidgetBoard::dropDownBtnWidth() const
{
    return m_dropDownBtnWidth;
}

void WidgetBoard::setDropDownBtnHeight(int height)
{
    m_dropDownBtnHeight = height;
}

int WidgetBoard::dropDownBtnHeight() const
{
    return m_dropDownBtnHeight;
}

void WidgetBoard::on_dropDownClicked()
{
    const QPointer<WidgetBoard> self(this);
    m_isReportingClick = true;
    Q_EMIT sigClickedDropDownBtn(!shapeWidgetVisible());
    if (self)
        m_isReportingClick = false;
}

void WidgetBoard::focusOutEvent(QFocusEvent *event)
{
    QFrame::focusOutEvent(event);
    // A press on one of the buttons in the panel gives it the focus. The popup has to stay for the
    // release, or there would be no click. It is the same with the tab key.
    const bool isByUser = event->reason() == Qt::MouseFocusReason
        || event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (!isByUser || !isAncestorOf(QApplication::focusWidget()))
        hideEverything();
}

void WidgetBoard::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    // The focus leaves the window, whichever of its widgets had it. Only windows get this event.
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        hideEverything();
}

void WidgetBoard::createShapeWidget()
{
    m_shapeWidget = new ShapeWidget(this);
    m_shapeWidget->hide();
    m_triggleBtnWidth = m_shapeWidget->triggleBtnWidth();
    m_triggleBtnHeight = m_shapeWidget->triggleBtnHeight();
}

void WidgetBoard::createDropDownBtn()
{
    m_dropDownButton = new QToolButton(this);
    m_dropDownButton->setFocusPolicy(Qt::NoFocus);
    m_dropDownButton->setMouseTracking(true);
    orvane::speakAs(m_dropDownButton, tr("Show all"));
    m_dropDownButton->hide();
    m_dropDownButton->setFixedSize(dropDownWidth, dropDownHeight);
    orvane::applyStyleSheet(
        m_dropDownButton,
        QStringLiteral("QToolButton{border-image: "
                       "url(:/Resource/Images/globalResource/dropDown/dropDown.png);}"));
    m_dropDownBtnWidth = m_dropDownButton->width();
    m_dropDownBtnHeight = m_dropDownButton->height();
    connect(m_dropDownButton, &QToolButton::clicked, this, &WidgetBoard::on_dropDownClicked);
}

void WidgetBoard::hideEverything()
{
    setDropButoonVisible(false);
    setShapeWidgetVisible(false);
    hide();
}
