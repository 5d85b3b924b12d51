#include "lineeditex.h"

#include "internal/stylesheet.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

namespace
{

constexpr int warningTime = 3000; // milliseconds
constexpr int warningDistance = 3; // pixels below the text cursor

bool isForbiddenInFileNames(int key)
{
    switch (key) {
    case Qt::Key_Slash:
    case Qt::Key_Backslash:
    case Qt::Key_Colon:
    case Qt::Key_Less:
    case Qt::Key_Bar:
    case Qt::Key_QuoteDbl:
    case Qt::Key_Asterisk:
    case Qt::Key_Greater:
    case Qt::Key_Question:
        return true;
    default:
        return false;
    }
}

} // namespace

LineEditEx::LineEditEx(QWidget *parent, LineEditType type)
    : QLineEdit(parent)
    , m_type(type)
{
    initStyle();
    setContextMenuPolicy(Qt::NoContextMenu);
    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &LineEditEx::slot_timerUpDate);
}

void LineEditEx::initStyle()
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    if (m_type == NormalLineEdit) {
        setNormalLineEditStyle();
    } else if (m_type == UnderlineLineEdit) {
        orvane::applyStyleSheet(
            this,
            QStringLiteral("background-color: rgb(69, 69, 69);color:rgb(210,210,210);"
                           "font: SimSun Arial;border: none;"));
    }
}

void LineEditEx::setNormalLineEditStyle()
{
    orvane::SheetText sheet;
    sheet << u"background-color:" << m_backgroundColor
          << u";color:rgb(210,210,210);font: SimSun Arial;border: " << m_borderWidth << u"px solid "
          << m_borderColor << u";";
    orvane::applyStyleSheet(this, sheet);
}

void LineEditEx::setBorderWidth(int width)
{
    // Hosts rely on this and the colour setters framing an underlined edit too.
    m_borderWidth = width;
    setNormalLineEditStyle();
}

int LineEditEx::borderWidth() const
{
    return m_borderWidth;
}

void LineEditEx::setBorderColor(const QColor &color)
{
    m_borderColor = color;
    setNormalLineEditStyle();
}

QColor LineEditEx::borderColor() const
{
    return m_borderColor;
}

void LineEditEx::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    setNormalLineEditStyle();
}

QColor LineEditEx::backgroundColor() const
{
    return m_backgroundColor;
}

void LineEditEx::setBFouceOut(bool focusOut)
{
    m_focusOut = focusOut;
}

bool LineEditEx::bFouceOut() const
{
    return m_focusOut;
}

void LineEditEx::setStrToolTips(const QString &text)
{
    m_toolTips = text;
}

QString LineEditEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void LineEditEx::keyPressEvent(QKeyEvent *event)
{
    if (!m_toolTips.isEmpty() && isForbiddenInFileNames(event->key())) {
        // The timer repeats: started anew by each such key, it goes on hiding tool tips after that.
        m_timer->start(warningTime);
        const QRect cursor = cursorRect();
        showWarning(mapToGlobal(QPoint(cursor.left(), cursor.bottom() + warningDistance)));
    }
    QLineEdit::keyPressEvent(event);
}

void LineEditEx::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (m_type == UnderlineLineEdit) {
        QPainter painter(this);
        painter.setPen(QColor(128, 128, 128));
        painter.drawLine(0, height() - 1, width() - 1, height() - 1);
    }
}

void LineEditEx::showWarning(QPoint globalPosition)
{
    // Qt neither moves a tip that already shows this text nor takes back that it is about to hide;
    // it does both for a tip with another text.
    if (QToolTip::isVisible() && QToolTip::text() == m_toolTips)
        QToolTip::showText(globalPosition, QStringLiteral(" "), this);
    QToolTip::showText(globalPosition, m_toolTips, this);
}

void LineEditEx::slot_timerUpDate()
{
    QToolTip::showText(QPoint(), QString());
}
