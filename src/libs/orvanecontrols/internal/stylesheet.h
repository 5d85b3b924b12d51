#ifndef ORVANE_INTERNAL_STYLESHEET_H
#define ORVANE_INTERNAL_STYLESHEET_H

#include "sheettext.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

class QColor;

namespace orvane
{

/// The font declaration that most sheets carry: a family at the inherited size.
inline constexpr char16_t fontDeclaration[] = u"font: SimSun Arial;";

/// A colour as SheetText writes it.
QString colorText(const QColor &color);

/// "color:" + colour + ";font: SimSun Arial;", what a main rule holds once its font colour is set.
QString fontColorFragment(const QColor &color);

/// Makes \a sheet the one that \a widget and its children are painted with from now on, whether
/// the widget has been shown or not. A sheet equal to the one in force costs nothing. While
/// HeldSheets cover the widget, they keep the sheet instead.
void applyStyleSheet(QWidget *widget, const QString &sheet);
void applyStyleSheet(QWidget *widget, const SheetText &sheet);

/// Keeps, while it lives, the sheets meant for one widget and the descendants in its window, and
/// applies the last of each at its end. Where several cover a widget, the eldest keeps its sheet.
class HeldSheets
{
public:
    explicit HeldSheets(const QWidget *root);
    ~HeldSheets();

    /// Those that cover \a widget, or null.
    static HeldSheets *over(const QWidget *widget);
    void keep(QWidget *widget, const QString &sheet);

private:
    Q_DISABLE_COPY(HeldSheets)

    struct Held {
        QPointer<QWidget> widget;
        QString sheet;
    };

    QPointer<const QWidget> m_root;
    std::vector<Held> m_held; ///< As the widgets came.
    QHash<const QWidget *, std::size_t> m_places; ///< By address: a dead widget's may come again.
};

} // namespace orvane

#endif // ORVANE_INTERNAL_STYLESHEET_H
