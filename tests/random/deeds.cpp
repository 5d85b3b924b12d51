#include "deeds.h"

#include "exclusions.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QHoverEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QMimeData>
#include <QMouseEvent>
#include <QWheelEvent>

namespace randomuse
{

namespace
{

constexpr int pixelsToPaint = 400000;

bool isPaintable(const QWidget *widget)
{
    return qint64(widget->width()) * widget->height() <= pixelsToPaint;
}

/// The subject's widget, or one inside it: users meet the children first.
QWidget *target(Life &life)
{
    QWidget *widget = life.widget();
    if (!widget || life.dice().chance(40))
        return widget;
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    if (children.isEmpty())
        return widget;
    QWidget *child = children.at(life.dice().below(children.size()));
    protocol::note(QString("in ") + child->metaObject()->className());
    return child;
}

QPoint place(Life &life, const QWidget *widget)
{
    Dice &dice = life.dice();
    const QPoint inside(dice.below(widget->width()), dice.below(widget->height()));
    const QPoint position = dice.chance(85) ? inside : QPoint(dice.between(-99, 999), -5);
    protocol::note(toText(position));
    return position;
}

Qt::KeyboardModifiers modifiers(Life &life)
{
    static const QVector<Qt::KeyboardModifiers> all{
        Qt::NoModifier,      Qt::NoModifier,
        Qt::NoModifier,      Qt::ShiftModifier,
        Qt::ControlModifier, Qt::AltModifier,
        Qt::MetaModifier,    Qt::ControlModifier | Qt::ShiftModifier};
    return life.dice().pick(all);
}

Qt::MouseButton button(Life &life)
{
    static const QVector<Qt::MouseButton> all{Qt::LeftButton,  Qt::LeftButton,   Qt::LeftButton,
                                              Qt::RightButton, Qt::MiddleButton, Qt::BackButton};
    return life.dice().pick(all);
}

void sendMouse(QWidget *widget, QEvent::Type type, QPoint position, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons, modifiers);
    QApplication::sendEvent(widget, &event);
}

void mouse(Life &life, QEvent::Type type)
{
    QWidget *widget = target(life);
    const QPoint position = place(life, widget);
    const bool isMove = type == QEvent::MouseMove;
    const Qt::MouseButton pressed = button(life);
    protocol::note(QString("button %1").arg(int(pressed)));
    const bool isHeld = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
        || (isMove && life.dice().chance(70));
    sendMouse(widget, type, position, isMove ? Qt::NoButton : pressed,
              isHeld ? Qt::MouseButtons(pressed) : Qt::NoButton, modifiers(life));
}

/// A press and a release at one place, as users mostly do.
void click(Life &life)
{
    const QPointer<QWidget> widget = target(life);
    const QPoint position = place(life, widget);
    const Qt::MouseButton pressed = button(life);
    const Qt::KeyboardModifiers held = modifiers(life);
    sendMouse(widget, QEvent::MouseButtonPress, position, pressed, pressed, held);
    if (widget)
        sendMouse(widget, QEvent::MouseButtonRelease, position, pressed, Qt::NoButton, held);
}

/// A press and moves away from it, as a drag begins, and a release.
void drag(Life &life)
{
    const QPointer<QWidget> widget = target(life);
    const QPoint position = place(life, widget);
    sendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton, {});
    for (int step = 1; widget && step <= 3; ++step) {
        sendMouse(widget, QEvent::MouseMove, position + QPoint(20, 15) * step, Qt::NoButton,
                  Qt::LeftButton, {});
    }
    if (widget)
        sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton, {});
}

void key(Life &life, QEvent::Type type)
{
    static const QVector<int> keys{
        Qt::Key_Return,    Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,      Qt::Key_Backtab,
        Qt::Key_Space,     Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,
        Qt::Key_Home,      Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete,
        Qt::Key_Backspace, Qt::Key_A,     Qt::Key_5,      Qt::Key_Minus,    Qt::Key_Control,
        Qt::Key_Shift,     Qt::Key_F2,    Qt::Key_F4};
    QWidget *widget = target(life);
    const int pressed = life.dice().pick(keys);
    protocol::note(QString("key 0x%1").arg(pressed, 0, 16));
    const QString text =
        pressed >= Qt::Key_Space && pressed < 127 ? QString(QChar(pressed)) : QString();
    QKeyEvent event(type, pressed, modifiers(life), text, life.dice().chance(20));
    QApplication::sendEvent(widget, &event);
}

void wheel(Life &life)
{
    QWidget *widget = target(life);
    const QPoint position = place(life, widget);
    const int turn = life.dice().pick(QVector<int>{-120, 120, -1, 0, 15, -100000, 100000});
    const QPoint delta = life.dice().chance(80) ? QPoint(0, turn) : QPoint(turn, 0);
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), delta, Qt::NoButton,
                      modifiers(life), Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void focus(Life &life)
{
    static const QVector<Qt::FocusReason> reasons{
        Qt::MouseFocusReason, Qt::TabFocusReason,      Qt::ActiveWindowFocusReason,
        Qt::PopupFocusReason, Qt::ShortcutFocusReason, Qt::OtherFocusReason};
    QWidget *widget = target(life);
    const Qt::FocusReason reason = life.dice().pick(reasons);
    switch (life.dice().below(4)) {
    case 0:
        widget->setFocus(reason);
        break;
    case 1:
        widget->clearFocus();
        break;
    case 2: {
        QFocusEvent event(QEvent::FocusIn, reason);
        QApplication::sendEvent(widget, &event);
        break;
    }
    default: {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(widget, &event);
        break;
    }
    }
}

/// Events that carry nothing.
void plainEvent(Life &life)
{
    static const QVector<QEvent::Type> types{QEvent::Enter,
                                             QEvent::Leave,
                                             QEvent::StyleChange,
                                             QEvent::FontChange,
                                             QEvent::PaletteChange,
                                             QEvent::EnabledChange,
                                             QEvent::LanguageChange,
                                             QEvent::LayoutRequest,
                                             QEvent::LayoutDirectionChange,
                                             QEvent::WindowActivate,
                                             QEvent::WindowDeactivate,
                                             QEvent::ActivationChange,
                                             QEvent::ApplicationFontChange,
                                             QEvent::ReadOnlyChange,
                                             QEvent::LocaleChange,
                                             QEvent::ToolTipChange,
                                             QEvent::UngrabMouse};
    QWidget *widget = target(life);
    const QEvent::Type type = life.dice().pick(types);
    protocol::note(QString("type %1").arg(int(type)));
    QEvent event(type);
    QApplication::sendEvent(widget, &event);
}

void hover(Life &life)
{
    static const QVector<QEvent::Type> types{QEvent::HoverEnter, QEvent::HoverMove,
                                             QEvent::HoverLeave};
    QWidget *widget = target(life);
    const QPoint position = place(life, widget);
    QHoverEvent event(life.dice().pick(types), position, QPoint(1, 1));
    QApplication::sendEvent(widget, &event);
}

void toolTip(Life &life)
{
    QWidget *widget = target(life);
    const QPoint position = place(life, widget);
    QHelpEvent event(QEvent::ToolTip, position, widget->mapToGlobal(position));
    QApplication::sendEvent(widget, &event);
}

void inputMethod(Life &life)
{
    QWidget *widget = target(life);
    QInputMethodEvent event(life.dice().chance(50) ? life.value<QString>() : QString(), {});
    event.setCommitString(life.value<QString>());
    QApplication::sendEvent(widget, &event);
}

/// Something is dragged over the widget and dropped, or taken away again.
void dropOn(Life &life)
{
    static const QVector<QString> formats{"CabinetInfo", "text/plain", "application/x-none"};
    const QPointer<QWidget> widget = target(life);
    const QPoint position = place(life, widget);
    // The bytes of a record are for a receiver in the same process, which may read it while it
    // lives.
    const StructCabinet cabinet = life.value<StructCabinet>();
    QMimeData data;
    data.setData(life.dice().pick(formats),
                 QByteArray(reinterpret_cast<const char *>(&cabinet), sizeof cabinet));
    QDragEnterEvent enter(position, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &enter);
    if (!widget)
        return;
    QDragMoveEvent move(position, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
    if (!widget)
        return;
    if (life.dice().chance(50)) {
        QDropEvent drop(position, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &drop);
    } else {
        QDragLeaveEvent leave;
        QApplication::sendEvent(widget, &leave);
    }
}

void changeLook(Life &life)
{
    QWidget *widget = life.widget();
    switch (life.dice().below(6)) {
    case 0: {
        QFont font = widget->font();
        font.setPointSize(life.dice().between(1, 40));
        widget->setFont(font);
        break;
    }
    case 1:
        widget->setLayoutDirection(life.dice().chance(50) ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    case 2:
        widget->setEnabled(life.value<bool>());
        break;
    case 3: {
        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, life.value<QColor>());
        widget->setPalette(palette);
        break;
    }
    case 4:
        widget->setContentsMargins(life.small(), life.small(), 0, 1);
        break;
    default:
        widget->setToolTip(life.value<QString>());
        break;
    }
}

void changeSheetAround(Life &life)
{
    static const QVector<QString> sheets{QString(), "QWidget { color: #123456; }",
                                         "QPushButton { padding: 3px; } QLabel { border: 2px; }",
                                         "* { font-size: 17px; }"};
    const QString sheet = life.dice().pick(sheets);
    protocol::note(toText(sheet));
    // Each change polishes every widget of the program anew: the room's is as good, and cheaper.
    if (life.dice().chance(10))
        qApp->setStyleSheet(sheet);
    else
        life.room()->setStyleSheet(sheet);
}

void showOrHide(Life &life)
{
    QWidget *widget = target(life);
    const bool isShown = life.value<bool>();
    if (!isShown || !widget->isWindow() || isPaintable(widget))
        widget->setVisible(isShown);
}

void resize(Life &life)
{
    // Qt takes sizes below nothing as they are.
    life.widget()->resize(life.value<QSize>().expandedTo(QSize(0, 0)));
}

void move(Life &life)
{
    const QPoint position(life.dice().between(-100, 500), life.dice().between(-100, 500));
    life.widget()->move(position);
}

/// Qt's windows go on pointing to a focus widget that left them while it was hidden, even when it
/// is deleted: plain buttons crash by it, too.
void forgetFocusIn(const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        QWidget *focus = around->focusWidget();
        if (focus && (focus == widget || widget->isAncestorOf(focus)))
            focus->clearFocus();
    }
}

void reparent(Life &life)
{
    QWidget *widget = life.widget();
    QWidget *parent = life.dice().chance(50) ? life.room() : nullptr;
    if (parent == nullptr && life.dice().chance(50)) {
        parent = life.newWidget();
        if (!isForSubject(life, parent))
            return;
    }
    protocol::note(parent ? parent->metaObject()->className() : "none");
    forgetFocusIn(widget);
    widget->setParent(parent);
    if (life.dice().chance(70) && isPaintable(widget))
        widget->show();
}

/// Also tests that the picture has the size of the widget.
void grab(Life &life)
{
    QWidget *widget = life.widget();
    if (!isPaintable(widget))
        return;
    // A picture may find out what size the widget needs, and panels in panels take several. Tab
    // widgets are left out: they widen step by step until their tabs fit, as their header says.
    constexpr int mostPictures = 20;
    if (widget->inherits("NQTabWidget")) {
        widget->grab();
        return;
    }
    QPixmap picture;
    for (int count = 1; count <= mostPictures; ++count) {
        picture = widget->grab();
        if (life.widget() != widget || !isPaintable(widget))
            return;
        if (picture.size() == widget->size() * picture.devicePixelRatio()
            || (widget->size().isEmpty() && picture.isNull())) {
            return;
        }
    }
    protocol::fail("grab() gives " + toText(picture.size()).toUtf8() + " for a widget of "
                   + toText(widget->size()).toUtf8());
}

void closeWidget(Life &life)
{
    life.widget()->close();
}

Action widgetAction(const char *name, void (*run)(Life &), Again again = Again::Settles)
{
    return {name, again, [run](Life &life, QObject *) {
                if (life.widget())
                    run(life);
            }};
}

bool isSimple(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QColor:
    case QMetaType::QSize:
    case QMetaType::QPoint:
    case QMetaType::QIcon:
        return true;
    default:
        return false;
    }
}

QVariant simpleValue(Life &life, int type)
{
    switch (type) {
    case QMetaType::Bool:
        return life.value<bool>();
    case QMetaType::Int:
        return life.value<int>();
    case QMetaType::Double:
        return life.value<double>();
    case QMetaType::QString:
        return life.value<QString>();
    case QMetaType::QColor:
        return life.value<QColor>();
    case QMetaType::QSize:
        return life.value<QSize>();
    case QMetaType::QPoint:
        return life.value<QPoint>();
    default:
        return life.value<QIcon>();
    }
}

QVector<QByteArray> classNames(const QObject *object)
{
    QVector<QByteArray> names;
    for (const QMetaObject *meta = object->metaObject(); meta; meta = meta->superClass())
        names.append(meta->className());
    return names;
}

void invoke(Life &life, QObject *subject, const QMetaMethod &method)
{
    QVector<QVariant> values;
    for (int index = 0; index < method.parameterCount(); ++index)
        values.append(simpleValue(life, method.parameterType(index)));
    constexpr int most = 3;
    QGenericArgument arguments[most];
    for (int index = 0; index < values.size(); ++index)
        arguments[index] =
            QGenericArgument(values.at(index).typeName(), values.at(index).constData());
    method.invoke(subject, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]);
}

bool takesSimpleValues(const QMetaMethod &method)
{
    constexpr int most = 3;
    if (method.parameterCount() > most)
        return false;
    for (int index = 0; index < method.parameterCount(); ++index) {
        if (!isSimple(method.parameterType(index)))
            return false;
    }
    return true;
}

} // namespace

QVector<Action> commonActions()
{
    QVector<Action> actions{
        widgetAction("(click)", click, Again::Grows),
        widgetAction("(click)", click, Again::Grows),
        widgetAction("(drag)", drag, Again::Grows),
        widgetAction("(wheel)", wheel),
        widgetAction("(focus)", focus, Again::Grows),
        widgetAction("(event)", plainEvent, Again::Grows),
        widgetAction("(hover)", hover),
        widgetAction("(tool tip)", toolTip, Again::Grows),
        widgetAction("(input method)", inputMethod, Again::Grows),
        widgetAction("(drop)", dropOn, Again::Grows),
        widgetAction("(look)", changeLook),
        widgetAction("(sheet)", changeSheetAround),
        widgetAction("(show)", showOrHide, Again::Grows),
        widgetAction("(resize)", resize),
        widgetAction("(move)", move),
        widgetAction("(parent)", reparent, Again::Grows),
        widgetAction("(grab)", grab, Again::Grows),
        widgetAction("(close)", closeWidget, Again::Grows),
        {"(events)", Again::Grows, [](Life &, QObject *) { Life::processEvents(); }},
    };
    static const QVector<QEvent::Type> mouseTypes{QEvent::MouseButtonPress,
                                                  QEvent::MouseButtonRelease, QEvent::MouseMove,
                                                  QEvent::MouseButtonDblClick};
    for (const QEvent::Type type : mouseTypes) {
        actions.append({"(mouse " + QByteArray::number(type) + ")", Again::Grows,
                        [type](Life &life, QObject *) {
                            if (life.widget())
                                mouse(life, type);
                        }});
    }
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        actions.append({type == QEvent::KeyPress ? "(key down)" : "(key up)", Again::Grows,
                        [type](Life &life, QObject *) {
                            if (life.widget())
                                key(life, type);
                        }});
    }
    return actions;
}

QVector<Action> propertyActions(QObject *subject)
{
    QVector<Action> actions;
    const QMetaObject *meta = subject->metaObject();
    const QVector<QByteArray> names = classNames(subject);
    for (int index = 0; index < meta->propertyCount(); ++index) {
        const QMetaProperty property = meta->property(index);
        if (!property.isWritable() || isExcluded(names, property.name()))
            continue;
        const bool isFlat = property.isEnumType() && !property.isFlagType();
        if (!isFlat && !isSimple(property.userType()))
            continue;
        actions.append({"property " + QByteArray(property.name()), Again::Grows,
                        [property, isFlat](Life &life, QObject *object) {
                            const QMetaEnum enumeration = property.enumerator();
                            const QVariant value = isFlat ? QVariant(enumeration.value(
                                                       life.dice().below(enumeration.keyCount())))
                                                          : simpleValue(life, property.userType());
                            if (isFlat)
                                protocol::note(value.toString());
                            property.write(object, value);
                        }});
    }
    return actions;
}

QVector<Action> slotActions(QObject *subject)
{
    QVector<Action> actions;
    const QMetaObject *meta = subject->metaObject();
    const QVector<QByteArray> names = classNames(subject);
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.methodType() != QMetaMethod::Slot || method.access() != QMetaMethod::Public
            || !takesSimpleValues(method) || isExcluded(names, method.name()))
            continue;
        actions.append({"slot " + method.methodSignature(), Again::Grows,
                        [method](Life &life, QObject *object) { invoke(life, object, method); }});
    }
    return actions;
}

QVector<int> deletingSignals(QObject *subject)
{
    QVector<int> found;
    const QMetaObject *meta = subject->metaObject();
    const QVector<QByteArray> names = classNames(subject);
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        const bool isOwn = QByteArray(method.enclosingMetaObject()->className()).at(0) != 'Q';
        if (isOwn && !isKeptInSignal(names, method.name()))
            found.append(index);
    }
    return found;
}

} // namespace randomuse
