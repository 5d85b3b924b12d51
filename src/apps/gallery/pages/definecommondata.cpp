#include "page.h"

#include <definecommondata.h>

#include <QGridLayout>
#include <QLabel>

namespace
{

QLabel *makeLabel(const QString &text, const QFont &font, const QColor &color, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

} // namespace

GALLERY_PAGE(DefineCommonData)
{
    page.setPurpose("The font texts that the style sheets share. A sheet writes \"font:\", the "
                    "text and a semicolon.");

    struct FontText {
        QString name;
        QString text;
    };
    auto *table = new QWidget;
    auto *layout = new QGridLayout(table);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6 * theme::unit);
    layout->setVerticalSpacing(theme::gap);
    layout->setColumnStretch(2, 1);
    int row = 0;
    for (const FontText &font : {FontText{"getNormalFont()", DefineCommonData::getNormalFont()},
                                 FontText{"getBigFont()", DefineCommonData::getBigFont()},
                                 FontText{"getBiggerFont()", DefineCommonData::getBiggerFont()}}) {
        auto *sample = new QLabel("Screen 1, 1920 × 1080, 屏幕配置", table);
        sample->setStyleSheet("font:" + font.text + ";");
        sample->setMinimumHeight(theme::controlHeight);
        QString visible = font.text; // blanks count in it
        visible.replace(' ', QChar(0x00B7));
        layout->addWidget(makeLabel(font.name, table->font(), theme::text, table), row, 0);
        layout->addWidget(makeLabel(visible, theme::codeFont(), theme::quietText, table), row, 1);
        layout->addWidget(sample, row, 2);
        ++row;
    }
    page.card("Font texts (· is a blank)", table);
}
