#include "exclusions.h"

#include <algorithm>

namespace randomuse
{

namespace
{

const QVector<Exclusion> &members()
{
    static const QVector<Exclusion> all{
        {"QDialog", "exec", "runs a loop of its own; the tables call it and end the loop"},
        {"QDialog", "open", "shows the dialog modally; the tables run it by exec()"},
        {"QObject", "deleteLater", "common actions delete the subject, and know of it"},
        {"QWidget", "showFullScreen", "the size of a screen is dear to paint; slots resize enough"},
        {"QWidget", "showMaximized", "the size of a screen is dear to paint; slots resize enough"},
        {"QWidget", "windowOpacity", "not supported by the offscreen platform, which says so"},
        {"QWidget", "windowModality", "a modal helper would take the events from its subject"},
        {"QDialog", "modal", "a modal helper would take the events from its subject"},
        {"QWidget", "geometry", "common actions resize to sizes that can be painted"},
        {"QWidget", "minimumWidth", "Qt paints millions of pixels; common actions resize"},
        {"QWidget", "minimumHeight", "Qt paints millions of pixels; common actions resize"},
        {"QWidget", "pos", "Qt's rectangles overflow at the ends of int; common actions move"},
        {"QWidget", "size", "common actions resize to sizes that can be painted"},
        {"QWidget", "styleSheet", "the library's classes own their sheets; the room has one"},
        {"QWidget", "setStyleSheet", "the library's classes own their sheets; the room has one"},
        {"QTableWidget", "rowCount", "Qt keeps every cell; the tables call it with few"},
        {"QTableWidget", "columnCount", "Qt keeps every cell; the tables call it with few"},
        {"QTableWidget", "removeRow", "Qt overflows at the end of int; a table calls it with few"},
        {"QTableWidget", "removeColumn", "Qt overflows as for rows; a table calls it with few"},
        {"QListView", "batchSize", "a warning of Qt's for what is not positive"},
        {"QTreeWidget", "columnCount", "Qt keeps every section; the tree has the one it needs"},
        {"QTabBar", "currentIndex", "the tables call the class's own setCurrentIndex()"},
    };
    return all;
}

const QVector<Exclusion> &signalsToOutlive()
{
    static const QVector<Exclusion> all{
        {"LabelEx", "signal_mouseenter", "the contract asks for deleteLater()"},
        {"LabelEx", "signal_mouseleave", "the contract asks for deleteLater()"},
        {"NQTabBar", "currentChanged", "the contract asks for deleteLater()"},
    };
    return all;
}

/// What the tables never do, since they could do nothing else with such an argument.
const QVector<Exclusion> &callersErrors()
{
    static const QVector<Exclusion> all{
        {"ComboBoxEx", "setWidgetItemList", "with items whose list is gone: the box looks them up"},
        {"Drawer", "setPVBoxlayout", "with a layout in no widget: Qt's keep deleted items there"},
        {"MutexButtonEx", "setButtonSpace", "with huge numbers: Qt's layouts overflow by them"},
        {"NQTabBar", "setCenterHLayoutSpace", "with huge numbers, as for buttons"},
        {"NQTabBar", "setLeftHLayoutSpace", "with huge numbers, as for buttons"},
        {"NQTabBar", "setRightHLayoutSpace", "with huge numbers, as for buttons"},
        {"NQTabBar", "setTabButton", "with a widget that is deleted later: Qt does not watch it"},
        {"NQToolButton", "setTopToBottomBtnVlayoutMargins", "with huge numbers, as for buttons"},
        {"NQToolButton", "setTopToBottomBtnVlayoutSpace", "with huge numbers, as for buttons"},
        {"ScrollBarEx", "ScrollBarEx", "of a null pointer, or of a bar that goes first"},
        {"ShapeWidget", "setTriggleBtnPos", "with huge numbers: Qt's rectangles overflow by them"},
        {"ShapeWidgetContent", "setLsWidget", "with widgets without a signal clicked()"},
        {"ToolButtonEx", "setLeftToRightLayoutSpace", "with huge numbers, as for buttons"},
        {"WidgetBoard", "setDropDownBtnPos", "with huge numbers, as for ShapeWidget"},
        {"WidgetBoard", "setTriggleBtnPos", "with huge numbers, as for ShapeWidget"},
        {"WidgetContent", "setLsWidget", "with widgets without a signal clicked()"},
        {"WidgetControllBoard", "setLsWidget", "with widgets without a signal clicked()"},
        {"WindowFrame", "WindowFrame", "of a parent alone: it has nothing to show or to size"},
        {"WindowTitle", "WindowTitle", "of a parent alone: it has no parts to set"},
    };
    return all;
}

bool names(const QVector<Exclusion> &list, const QVector<QByteArray> &classNames,
           const QByteArray &member)
{
    return std::any_of(list.begin(), list.end(), [&](const Exclusion &exclusion) {
        return member == exclusion.member && classNames.contains(exclusion.className);
    });
}

} // namespace

bool isExcluded(const QVector<QByteArray> &classNames, const QByteArray &member)
{
    return names(members(), classNames, member);
}

bool isKeptInSignal(const QVector<QByteArray> &classNames, const QByteArray &signal)
{
    return names(signalsToOutlive(), classNames, signal);
}

const QVector<Exclusion> &classesWithoutEntry()
{
    static const QVector<Exclusion> all{
        {"StructCabinet", "", "a record without functions, which values.cpp fills"},
        {"BackUpParam", "", "a record without functions, which values.cpp fills"},
        {"WidgetInfo", "", "a record without functions, which the board's table fills"},
    };
    return all;
}

QVector<Exclusion> allExclusions()
{
    return members() + signalsToOutlive() + callersErrors() + classesWithoutEntry();
}

bool isExpected(const QString &warning)
{
    struct Expected {
        const char *part;
        const char *reason;
    };
    static const QVector<Expected> all{
        {"This plugin does not support ", "the offscreen platform, of popups and windows"},
        {"which already has a layout", "the title and the frame, as their headers say"},
        {"already has a parent", "the title and the frame, as their headers say"},
        {"Negative sizes", "Qt names the caller's size"},
        {"The smallest allowed size", "Qt names the caller's size"},
        {"The largest allowed size", "Qt names the caller's size"},
        {"Recursive repaint detected",
         "the board's picture buttons; hosts rely on their attribute"},
        {"Broken filename passed to function", "Qt names the caller's path, a text with a nul"},
        {"Invalid base", "Qt names the caller's base of QSpinBox"},
        {"QComboBox::setMaxCount: Invalid count", "Qt names the caller's count"},
        {"Invalid max visible items", "Qt names the caller's count"},
        {"QWidgetLineControl::setSelection", "Qt's line edit, when an input method composes"},
        {"QLineEdit::setSelection: Invalid start", "Qt's spin boxes, cleared before their suffix"},
        {"Timers cannot have negative timeouts", "Qt names the caller's time of animateClick()"},
        {"does not contain a '[*]' placeholder", "Qt names the caller's title"},
        {"qDrawShade", "Qt's frames, panels and lines that are squeezed to nothing"},
        {"qDrawPlainRect: Invalid parameters", "Qt's frame, on a widget that is too small for it"},
        {"Could not parse stylesheet", "texts of the caller's that are no sheets"},
        {"Could not parse application stylesheet", "texts of the caller's that are no sheets"},
    };
    return std::any_of(all.begin(), all.end(), [&](const Expected &expected) {
        return warning.contains(QLatin1String(expected.part));
    });
}

} // namespace randomuse
