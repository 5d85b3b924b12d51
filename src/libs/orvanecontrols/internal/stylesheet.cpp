#include "stylesheet.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QColor>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QTabBar>

#include <algorithm>
#include <array>

namespace orvane
{

namespace
{

/// Whether \a widget goes by its sheet although it has never been shown: it was made ready for
/// showing, or it is of those that place their items before that.
bool isStyledEarly(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_WState_Polished)
        || qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QTabBar *>(widget);
}

/// Whether nobody but \a widget reads its sheet: what Qt has kept of it, it drops at the first
/// show.
bool isAlone(const QWidget *widget)
{
    const bool isLeaf = qobject_cast<const QAbstractButton *>(widget)
        || qobject_cast<const QLabel *>(widget) || qobject_cast<const QSlider *>(widget)
        || qobject_cast<const QLineEdit *>(widget);
    const QObjectList &children = widget->children();
    return isLeaf && std::none_of(children.begin(), children.end(), [](const QObject *child) {
               return child->isWidgetType();
           });
}

/// Eldest first.
std::vector<HeldSheets *> &allHeldSheets()
{
    static std::vector<HeldSheets *> all;
    return all;
}

void restyleEarlyOnes(QWidget *widget)
{
    QList<QWidget *> early = widget->findChildren<QWidget *>();
    early.prepend(widget);
    early.erase(std::remove_if(early.begin(), early.end(),
                               [](const QWidget *w) { return !isStyledEarly(w); }),
                early.end());
    QEvent change(QEvent::StyleChange);
    for (QWidget *each : qAsConst(early)) {
        each->style()->polish(each);
        QCoreApplication::sendEvent(each, &change);
    }
}

/// \a sheet as Qt takes it. Controls of one kind mostly have equal sheets: those of late are kept,
/// so that such controls share one text.
QString sharedText(const SheetText &sheet)
{
    static std::array<QString, 32> lately;
    QString &text = lately.at(std::size_t(sheet.view().size()) % lately.size());
    if (!sheet.equals(text))
        text = sheet.toString();
    return text;
}

} // namespace

QString colorText(const QColor &color)
{
    return (SheetText() << color).toString();
}

QString fontColorFragment(const QColor &color)
{
    return (SheetText() << u"color:" << color << u";" << fontDeclaration).toString();
}

void applyStyleSheet(QWidget *widget, const QString &sheet)
{
    if (HeldSheets *held = HeldSheets::over(widget)) {
        held->keep(widget, sheet);
        return;
    }
    const QString earlier = widget->styleSheet();
    if (earlier == sheet)
        return;
    const bool hadStyle = widget->style()->inherits("QStyleSheetStyle"); // its own or a parent's
    const bool hasAsked = hadStyle && widget->testAttribute(Qt::WA_StyleSheet);
    const bool isLate = hadStyle && !widget->testAttribute(Qt::WA_WState_Polished);
    widget->setStyleSheet(sheet);
    if (isAlone(widget))
        return;

    // Qt reads a later sheet, and gives it to the children, only if the widget was made ready for
    // showing: until then it would go on with the one that it has read, and a child that was made
    // ready meanwhile would keep to that one.
    if (isLate && (hasAsked || !earlier.isEmpty())) {
        widget->setAttribute(Qt::WA_StyleSheet);
        widget->style()->unpolish(widget); // forgets what was read
    }
    // Qt keeps parsed sheets by widget address, and forgets one before the first show, or when the
    // widget dies, only if that widget has asked the style something itself. So the widget asks,
    // once: how Qt learns of its death outlasts the forgetting.
    widget->setAttribute(Qt::WA_StyleSheet, hasAsked);
    if (!hasAsked)
        widget->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, widget);
    if (isLate)
        restyleEarlyOnes(widget);
}

void applyStyleSheet(QWidget *widget, const SheetText &sheet)
{
    // A sheet that is kept for later may differ from the one in force.
    if (!sheet.equals(widget->styleSheet()) || HeldSheets::over(widget))
        applyStyleSheet(widget, sharedText(sheet));
}

HeldSheets::HeldSheets(const QWidget *root)
    : m_root(root)
{
    allHeldSheets().push_back(this);
}

HeldSheets::~HeldSheets()
{
    std::vector<HeldSheets *> &all = allHeldSheets();
    all.erase(std::find(all.begin(), all.end(), this));
    // Younger ones take over what they cover, too.
    for (const Held &each : m_held) {
        if (each.widget)
            applyStyleSheet(each.widget, each.sheet);
    }
}

HeldSheets *HeldSheets::over(const QWidget *widget)
{
    for (HeldSheets *held : allHeldSheets()) {
        if (held->m_root == widget || (held->m_root && held->m_root->isAncestorOf(widget)))
            return held;
    }
    return nullptr;
}

void HeldSheets::keep(QWidget *widget, const QString &sheet)
{
    const auto place = m_places.constFind(widget);
    if (place != m_places.constEnd() && m_held[*place].widget) {
        m_held[*place].sheet = sheet;
        return;
    }
    m_places.insert(widget, m_held.size());
    m_held.push_back({widget, sheet});
}

} // namespace orvane
