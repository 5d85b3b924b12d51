#include "look.h"

#include <QLabel>
#include <QPalette>

namespace wall::look
{

void applyTo(QWidget *page)
{
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, well);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
}

QLabel *makeWrappedLabel(const QString &text, QWidget *parent)
{
    QLabel *label = makeQuietLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

} // namespace wall::look
