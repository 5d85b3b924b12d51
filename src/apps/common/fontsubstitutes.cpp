#include "fontsubstitutes.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

void registerFontSubstitutes()
{
    // In order of preference. Faces that are not installed are passed over, and a system that has
    // the named face itself uses that one.
    const QStringList latin = {"Inter", "Noto Sans", "Segoe UI", "DejaVu Sans"};
    const QStringList chinese = {"Noto Sans CJK SC", "Source Han Sans SC", "WenQuanYi Micro Hei"};

    // "font: SimSun Arial" in a sheet is the family Arial at the inherited size.
    QFont::insertSubstitutions("Arial", latin + chinese);
    // DefineCommonData's texts name this face. Where a sheet has a "pt" behind the quoted family,
    // Qt takes that for a part of the family's name.
    QFont::insertSubstitutions("微软雅黑", latin + chinese);
    QFont::insertSubstitutions("微软雅黑 pt", latin + chinese);

    // The size and face that sheets without a size inherit.
    QFont base = QApplication::font();
    const QStringList installed = QFontDatabase().families();
    for (const QString &family : latin) {
        if (installed.contains(family)) {
            base.setFamily(family);
            break;
        }
    }
    base.setPointSizeF(9);
    QApplication::setFont(base);
}
