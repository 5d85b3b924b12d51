#ifndef ORVANE_TESTS_RIGHTTOLEFT_H
#define ORVANE_TESTS_RIGHTTOLEFT_H

#include <QAbstractButton>
#include <QGuiApplication>

/// Lays the whole application out from right to left, as long as it lives.
class MirroredApplication
{
public:
    MirroredApplication() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~MirroredApplication() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    Q_DISABLE_COPY_MOVE(MirroredApplication)
};

/// The button in \a widget that a screen reader speaks as \a name.
inline QAbstractButton *buttonNamed(const QWidget *widget, const QString &name)
{
    const QList<QAbstractButton *> buttons = widget->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

#endif // ORVANE_TESTS_RIGHTTOLEFT_H
