#include "shapewidget.h"

#include "internal/stylesheet.h"
#include "scrollbarex.h"
#include "ui_shapewidget.h"

#include <QScrollBar>
#include <QToolButton>

namespace
{

constexpr int triggleWidth = 20;
constexpr int triggleHeight = 8;
constexpr int horizontalHandle = 8;

} // namespace

ShapeWidget::ShapeWidget(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ShapeWidget>())
{
    m_ui->setupUi(this);
    createTriggleBtn();
    initStyle(); // the area's sheet first: its bars take it over
    setScrollBarStyle();
    setAttribute(Qt::WA_TranslucentBackground);
}

ShapeWidget::~ShapeWidget() = default;

void ShapeWidget::createTriggleBtn()
{
    m_triggleButton = new QToolButton(m_ui->triggleFrame);
    m_triggleButton->setFixedSize(triggleWidth, triggleHeight);
    m_triggleButton->setFocusPolicy(Qt::NoFocus); // it only points
    orvane::applyStyleSheet(
        m_triggleButton,
        QStringLiteral("QToolButton{border-image:"
                       "url(:/Resource/Images/globalResource/triggleBtn/triggleBtn.png);}"));
    m_triggleBtnWidth = m_triggleButton->width();
    m_triggleBtnHeight = m_triggleButton->height();
}

void ShapeWidget::initStyle()
{
    orvane::applyStyleSheet(m_ui->scrollArea,
                            QStringLiteral("QScrollArea{background-color:rgb(69,69,69);"
                                           "border:1px solid rgb(112, 112, 112);}"));
}

void ShapeWidget::setScrollBarStyle()
{
    ScrollBarEx horizontal(m_ui->scrollArea->horizontalScrollBar(), false);
    horizontal.setScrollBarHeight(horizontalHandle); // applies the style, too

    ScrollBarEx vertical(m_ui->scrollArea->verticalScrollBar(), false);
    vertical.setVerticalStyle();
}

void ShapeWidget::addWidget(QWidget *w)
{
    if (!w)
        return;
    // A scroll area remembers the size of its widget, and takes it anew only from another one.
    if (w == m_ui->scrollArea->widget())
        m_ui->scrollArea->takeWidget();
    // In this order each sheet inside is read once: the content takes over the area's style, gets
    // its own sheet, and is made ready for showing by the area. Qt does not read the capitals of
    // that sheet, which hosts rely on; the area's ground, in the same colour, shows through.
    w->setParent(m_ui->scrollArea->viewport());
    w->setObjectName(QStringLiteral("shapeWidgetContent"));
    orvane::applyStyleSheet(w, QStringLiteral("#shapeWidgetContent{background:RGB(69,69,69);}"));
    m_ui->scrollArea->setWidget(w);
    // Hidden layouts do not tell their parents: each is told here that the room needed changed.
    m_ui->scrollArea->updateGeometry();
    m_ui->scrollAreaFrame->updateGeometry();
    updateGeometry();
    w->setAutoFillBackground(false); // the area set it
    m_ui->scrollArea->setFocusPolicy(Qt::NoFocus);
}

void ShapeWidget::setTriggleBtnPos(QPoint pos)
{
    // Out of the layout, which would put the arrow back where it was on the next occasion.
    m_ui->gridLayout_2->removeWidget(m_ui->triggleFrame);
    m_ui->triggleFrame->move(pos);
}

void ShapeWidget::setTriggleBtnWidth(int width)
{
    m_triggleBtnWidth = width;
}

int ShapeWidget::triggleBtnWidth() const
{
    return m_triggleBtnWidth;
}

void ShapeWidget::setTriggleBtnHeight(int height)
{
    m_triggleBtnHeight = height;
}

int ShapeWidget::triggleBtnHeight() const
{
    return m_triggleBtnHeight;
}
