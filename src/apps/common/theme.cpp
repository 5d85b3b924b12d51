#include "theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QScrollBar>
#include <QStyleFactory>

#include <scrollbarex.h>

namespace theme
{

void apply()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));

    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, well);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, raised);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Light, line);
    palette.setColor(QPalette::Midlight, line);
    palette.setColor(QPalette::Mid, well);
    palette.setColor(QPalette::Dark, well);
    palette.setColor(QPalette::Shadow, well);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::ToolTipBase, raised);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, disabledText);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabledText);
    QApplication::setPalette(palette);
    QApplication::setPalette(palette, "QTipLabel");
}

void styleScrollBars(QAbstractScrollArea *area)
{
    const auto style = [](QScrollBar *bar) {
        ScrollBarEx look(bar, false);
        look.setScrollWidth(12);
        look.setScrollHeight(12);
        look.setScrollBarWidth(8);
        look.setScrollBarHeight(8);
        look.setScrollBarMargin(3);
        look.setBorderRadius(3);
        look.setIconWidth(0);
        look.setIconHeight(0);
        look.setScrollColor(QColor(0, 0, 0, 0));
        look.setScrollHandleColor(line);
        look.setScrollHandlePressedColor(QColor(99, 99, 99));
        if (bar->orientation() == Qt::Vertical)
            look.setVerticalStyle();
        else
            look.setHorizontalStyle();
    };
    style(area->verticalScrollBar());
    style(area->horizontalScrollBar());
}

QFont headingFont(qreal pointsMore)
{
    QFont font = QApplication::font();
    font.setWeight(QFont::DemiBold);
    font.setPointSizeF(font.pointSizeF() + pointsMore);
    return font;
}

QFont codeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QStringList installed = QFontDatabase().families();
    for (const char *family : {"JetBrains Mono", "Cascadia Mono", "Consolas", "DejaVu Sans Mono"}) {
        if (installed.contains(family)) {
            font.setFamily(family);
            break;
        }
    }
    font.setPointSizeF(QApplication::font().pointSizeF() - 0.5);
    return font;
}

QLabel *makeHeading(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setFont(headingFont());
    return label;
}

QLabel *makeQuietLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    setTextColor(label, quietText);
    return label;
}

void setTextColor(QLabel *label, const QColor &color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

PushButtonEx *makeButton(const QString &text, BtnType type, QWidget *parent, int leastWidth)
{
    auto *button = new PushButtonEx(parent, type);
    button->ensurePolished(); // the sheet brings the font
    QString shown = text;
    const int textWidth = button->fontMetrics().horizontalAdvance(shown.remove('&'));
    // Before the text, which the button cuts to its width.
    button->setFixedSize(qMax(leastWidth, textWidth + 6 * unit), controlHeight);
    button->setText(text);
    return button;
}

void drawFrame(QPainter &painter, const QRectF &rect, const QColor &color, qreal width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    const qreal half = width / 2;
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), cornerRadius, cornerRadius);
    painter.restore();
}

} // namespace theme
